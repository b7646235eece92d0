<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fil" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Nandito ka</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Buksan ang buong page</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Ipinapadala…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Ipakita ang mas kaunti</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Ipakita ang lahat</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter para ipadala, Shift+Enter para sa bagong linya</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Ipadala</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Subukan ulit</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Alisin</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Alisin: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Mas nauna</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Bumalik sa taon</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mas huli</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Naka-expand</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Naka-collapse</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Pumunta sa pinakabago</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln bagong message</numerusform>
            <numerusform>%Ln na bagong message</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Mukhang offline ka. I-check ang connection mo at subukan ulit.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Isara</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Itago ang password</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Ipakita ang password</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, dating %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Sold out</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Sandali lang</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Alisin sa wishlist</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>I-save sa wishlist</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Maghanap</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Nakaraan</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Susunod</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, sold out na</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, rekomendado sa iyo</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>%L1 sa 5 ang rating, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>%L1 sa 5 ang rating</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Bawasan</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Dagdagan</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>I-undo</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Account mo</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Mag-sign out</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Ang wardrobe mo, laging natatandaan</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Puwede kang tumingin at bumili rito kahit walang account. Kapag may account ka, alam ng shop kung nasaan ang mga parcel mo at kung ano ang hinihintay mo.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Mag-sign in</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Gumawa ng account</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Lahat ng order, nasa iisang lugar</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Alam mo kung nasaan ang bawat parcel, at puwedeng mag-return nang hindi naghahanap ng resibo</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Balita kapag mahalaga</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>May stock na ulit sa size mo, o bumaba ang presyo</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Membership at mga coupon</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Points, tier, at mga perk nito</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Checkout na kilala ka</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Nakalagay na ang address mo</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Customer service</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Mga order, return, at size</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Mga order</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Mga paparating at dati nang binili</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>I-track ang parcel</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Gamit ang number ng parcel o ng order</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Mga return</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Magbalik ng item</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Para sa iyo</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Wishlist</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Wala pang naka-save</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln item</numerusform>
            <numerusform>%Ln na item</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Mga alert</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>May stock na ulit, mas mababang presyo</translation>
    </message>
    <message>
        <source>Membership</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Membership</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Tier at points mo</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Mga coupon</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Magagamit mo sa checkout</translation>
    </message>
    <message>
        <source>Account</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Account</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Walang account</translation>
    </message>
    <message>
        <source>Profile</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Pangalan, kaarawan, at newsletter</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Ano ang nalalaman ng store tungkol sa iyo</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Naka-save sa computer na ito</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>I-delete ang account…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Hindi sumasagot ang keyring mo</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Ito ang nag-iingat ng sign-in mo, at walang makakapag-sign in kung wala ito. I-unlock ito, tapos subukan ulit.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Back in stock</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Price drop</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>May stock na ulit</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Mas mura na</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 noong nag-set ka ng alert</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Itigil ang alert na ito</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln alert</numerusform>
            <numerusform>%Ln na alert</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Mag-e-email kami sa %1 kapag may stock na ulit o bumaba ang presyo ng item.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Wala pang alert</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Kung sold out ang item sa size mo, pindutin ang “Sabihan ako kapag may stock na”. Sa iba naman, “Sabihan ako kapag bumaba ang presyo”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>New in</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Mag-sign in para makita ang mga alert mo</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Sasabihan ka namin kapag may stock na ulit sa size mo o mas mura na ang item.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Hindi na kami mag-e-email tungkol dito.</numerusform>
            <numerusform>Hindi na kami mag-e-email tungkol sa mga ito.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln item</numerusform>
            <numerusform>%1, %Ln na item</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Mga designer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln designer</numerusform>
            <numerusform>%Ln na designer</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Maghanap ng designer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>I-clear</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Mga letra</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Iba pang designer</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Mga designer na nagsisimula sa %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Walang designer na tugma sa “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>I-check ang spelling, o tingnan silang lahat.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Ipakita ang lahat ng designer</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Wala pa rito</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>May bagong item bawat linggo.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Mag-explore</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln review</numerusform>
            <numerusform>%Ln na review</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln ang nabenta</numerusform>
            <numerusform>%Ln ang nabenta</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Pre-order</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Pinakamadalas piliin: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Paano ito i-style?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>I-compare</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Katabi ng mga item na na-save o tiningnan mo</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>LIBRENG worldwide shipping</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Sa mga cart na %1 pataas</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Magandang malaman</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Kasama na ang import duties</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Kakalkulahin ang shipping sa checkout</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Mag-e-email kami kapag may stock na</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Sabihan ako kapag may stock na</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Naidagdag na</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Idagdag sa cart</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Pindutin para bawiin</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Binubuksan ang checkout…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Bilhin ngayon</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Tawag kay %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Buksan sa window</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Tapusin</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Tapusin ang tawag</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Ipakita ang tawag</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Tawagan si %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Tumawag ulit</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Naka-on ang mic</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Naka-mute ang mic</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Tumatawag…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Nag-iisip</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Nagsasalita</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Naka-mute</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Nakikinig</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Tapos na ang tawag</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>I-unmute</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>I-mute</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Discount code</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Gamitin</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Hindi ma-load ang cart mo</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Ligtas ang mga item mo. I-check ang connection mo at subukan ulit.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Walang laman ang cart mo</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Dito lalabas ang mga item na idaragdag mo.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Magpatuloy sa pag-shopping</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Tinanggal sa cart: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Nag-expire na ang dati mong cart. %Ln item ang laman nito.</numerusform>
            <numerusform>Nag-expire na ang dati mong cart. %Ln na item ang laman nito.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Isama ulit</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Dami: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Alisin sa cart</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>I-dismiss</translation>
    </message>
    <message>
        <source>Cart</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Cart</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Cart</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Ipakita sa gilid</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Subtotal</translation>
    </message>
    <message>
        <source>Discount</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Discount</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Kabuuan</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Kasama na ang import duties · Kakalkulahin ang shipping sa checkout</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Checkout</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Tapusin ang pagbabayad sa checkout window. Mananatili ang cart mo.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Hindi available</translation>
    </message>
    <message>
        <source>Collection</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Collection</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln bago sa nakaraang 30 araw</numerusform>
            <numerusform>%Ln na bago sa nakaraang 30 araw</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Hindi available ang collection na ito</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Baka pinalitan ang pangalan o hindi ibinebenta sa %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Walang item na tugma sa mga filter na ito</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Mag-alis ng filter para mas marami ang makita.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Kumpletuhin ang look</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Mga item na babagay rito</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Nagustuhan din</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Ng mga tumingin sa item na ito</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Baka magustuhan mo rin</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Magdagdag ng mga item na iko-compare</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Magdagdag ng item</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Mula sa wishlist mo at mga tiningnan mo</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Mag-save o tumingin ng mga item, tapos idagdag dito.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>I-compare sa %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Mga size</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Materyales</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Alisin sa comparison</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Hindi available sa bansa mo.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>hindi nakasaad</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Mga size ng %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Bumalik sa una</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Ano ang suot ng iba</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Mag-ikot-ikot</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Sinusundan</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Balita mula sa mga designer mo</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Tingnan ang bago</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Closet</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Ano ang isusuot ko ngayon?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Buksan ang closet</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Mga order at alert mo</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Membership mo</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Tingnan ang mga perk</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Nasaan ang parcel ko?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Order %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Tingnan ang order</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Mga price drop</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Mas mura na ang mga item mo</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>I-save ang mga gusto mo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln item na naka-save</numerusform>
            <numerusform>%Ln na item na naka-save</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Tingnan ang wishlist</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>I-delete ang account mo?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Tuluyang made-delete ang profile, mga alert, membership, at listahan ng mga order mo. Darating pa rin ang mga order na papunta na. Hindi na ito mababawi.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>I-type ang email address mo para kumpirmahin</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>I-delete ang account</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Kanselahin</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Mga collection</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Mga filter</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>I-clear ang lahat ng filter</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Maghanap sa %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Walang ganyang pangalan</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Mas kaunti</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Ipakita lahat (%Ln)</numerusform>
            <numerusform>Ipakita lahat (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Mula</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Hanggang</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Ipakita ang mga item</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Ipakita ang %Ln item</numerusform>
            <numerusform>Ipakita ang %Ln na item</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Isara ang mga filter</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln ang napili, %L1 ang puwedeng i-compare</numerusform>
            <numerusform>%Ln ang napili, %L1 ang puwedeng i-compare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln ang napili</numerusform>
            <numerusform>%Ln ang napili</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Pumili ng dalawa hanggang apat na item</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Tapos na</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Pumili</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Pinakabago muna</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Presyo: mababa pataas</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Presyo: mataas pababa</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Nakita mo na lahat: %Ln item</numerusform>
            <numerusform>Nakita mo na lahat: %Ln na item</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Collection: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Buksan ang %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Pumili ng size</translation>
    </message>
    <message>
        <source>Size</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Size</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Rekomendado sa iyo: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Nasa cart mo</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Palitan</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Huwag isama</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 sa %Ln item</numerusform>
            <numerusform>%L1 sa %Ln na item</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Kapalit ng %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Walang katulad nito sa ngayon.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Pili ni Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Ang look mo</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Piliin ang mga size, palitan ang hindi mo gaanong gusto, at huwag isama ang meron ka na.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>in</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Mga sukat mo</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Dito ibinabatay ni Mira ang mga size mo. Mapupunta ang mga ito sa usapan ninyo, at may kopyang mananatili sa computer na ito hanggang mag-sign out ka.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Metric</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Metric</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Tangkad (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>ft</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Timbang (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>lb</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>Dibdib (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Baywang (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Balakang (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Iwanang blangko kung hindi mo alam.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Gustong fit</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Ipadala kay Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>I-delete sa computer na ito</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Gawan ng look</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Pumili ng size at idagdag sa cart</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Mag-message kay %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look na may %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Mga item ko · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>I-style gamit ang mga item ko</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Panahon</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Higit pa</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Tingnan ang look: %Ln item, nasa size mo</numerusform>
            <numerusform>Tingnan ang look: %Ln na item, lahat nasa size mo</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Bagong topic</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Mga topic…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>I-refresh</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>I-style gamit ang mga item ko…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Mga sukat ko…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Panahon…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Ipakita sa tabi ng page</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Mga suggestion</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Ipadala: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Usapan ninyo ni %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Palitan ang pangalan</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>I-delete</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Pangalan ng topic</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>I-delete ang “%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Huwag i-delete</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Mga topic</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Ikaw</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Ilagay ang mga sukat ko</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>Ito muna ang gagamitin ni %1, at magdaragdag lang ng bago kung may kulang.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Wala pang mai-style</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Dito lalabas ang mga item sa cart at wishlist mo.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln ang napili, ito na ang maximum</numerusform>
            <numerusform>%Ln ang napili, ito na ang maximum</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Nasa cart mo</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Nasa wishlist mo</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Nasaan ka? Babagay sa panahon ang look.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>I-style ako ayon sa panahon</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Lungsod</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>I-set</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Gamitin ang location ko</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Saan ang lakad mo?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Sabihin kay %1 ang okasyon, isang item na gusto mo, o budget, at siya ang bubuo ng look.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Mag-sign in para makita ang balita sa mga order at alert mo.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Ipakita</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Lahat</translation>
    </message>
    <message>
        <source>System</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Customer service</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Mga notification</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Mag-sign in para makita ang mga notification mo</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Walang bago</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Dito ibinabalita ang mga order na papunta na, mga item na may stock na ulit, at mas mababang presyo.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Dito lalabas ang tungkol sa mga order mo at mga item na sinusubaybayan mo.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Hindi pa nabasa</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Markahan lahat bilang nabasa na</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Mga setting ng notification</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Inaasahan sa %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Order</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>In-order noong %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Parcel</numerusform>
            <numerusform>Mga parcel</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Mga item</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Mga return at refund</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Wala rito ang order na ito</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Lalabas dito ang bago mong order sa loob ng ilang minuto.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Baka sa ibang account ito.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Mag-sign in para makita ang order na ito</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Puwedeng i-track ang parcel gamit ang number nito kahit walang account.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Dami: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Nakatago</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Ipakita ulit ang order</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Itago ang order</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Aling mga order</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Papunta na</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Naihatid na</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Nakatago ang lahat ng order mo</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Walang paparating</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Wala pang naihatid</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Walang return</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Nakatago ang ilan sa mga ito.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Ipakita ang mga nakatagong order</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Lahat ng order</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Lalabas na rito ang order mo</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Wala pang order</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Dito lalabas ang mga in-order mo at kung nasaan na ang mga ito.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Mag-sign in para makita ang mga order mo</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Kung nasaan na, ano ang laman, at paano magbalik ng item.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Nakatago sa mga order mo sa computer na ito.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Hakbang %L1 sa %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Buod</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Address ng delivery</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Mag-request ng return</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Parcel %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Hindi pa kilala ang number na ito</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Puwedeng abutin ng isang araw bago makita ng courier ang bagong parcel.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Buksan ang page ng courier</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Wala pang balita mula sa courier.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Mga update sa parcel</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Pansamantalang hindi available</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Naka-pause muna ang feature na ito. Subukan ulit mamaya.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Alisin sa listahan</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Hindi available ang item na ito</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Baka tuluyan nang sold out, o hindi ibinebenta sa %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Mag-e-email kami kapag mas mura na</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Sabihan ako kapag bumaba ang presyo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln item ang mas mura kaysa noong nakita mo</numerusform>
            <numerusform>%Ln na item ang mas mura kaysa noong nakita mo</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Wala pang binabantayan</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Walang price drop sa ngayon</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Mag-save o tumingin ng item, at makikita mo rito kapag mas mura na.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Pareho pa rin ang presyo ng mga na-save at tiningnan mong item, o sa ibang currency mo sila nakita.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Mga picture</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Picture %L1 sa %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, ika-%L2 na picture</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Tingnan lahat</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Hindi interesado</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Pagkalipas ng %Ln araw: %1</numerusform>
            <numerusform>Pagkalipas ng %Ln na araw: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Sagot ng store: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Mga review</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Iba pang review</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Paglalarawan</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Mga highlight</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Mga detalye</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Mga tanong at sagot</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Pangalan</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone number</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Kaarawan</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Pumili ng petsa</translation>
    </message>
    <message>
        <source>Email</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Email</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Ang address na pang-sign in mo</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Bansa</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>I-save</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>I-discard ang mga binago</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Na-save na</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Kasama namin mula %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Mga newsletter</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Sa email</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Mga bagong item at offer, sa %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Sa text</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Kailangan ang phone number mo sa itaas</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Mag-sign in para makita ang profile mo</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Pangalan mo, phone number, at kung ano ang puwede naming ipadala.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Tuklasin</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Mag-ikot-ikot lang, at makikita mo rito ang babagay.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Kamakailang tiningnan</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>I-clear lahat</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Wala pang browsing history</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Dito naiipon ang mga tiningnan mong item, para madali silang balikan.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Mag-sign in at mag-e-email kami kapag may stock na ulit.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Sa %1 ipapadala ang email. Pindutin ulit kung ayaw mo na nito.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Sa %1 ipapadala ang email.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Palakihin ang picture %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln resulta para sa “%1”</numerusform>
            <numerusform>%Ln na resulta para sa “%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Ano ang hinahanap mo?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Walang resulta para sa “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>I-check ang spelling, gumamit ng mas malawak na salita, o tingnan ang New in.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Walang tugma sa mga filter na ito</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Mag-alis ng isa o dalawang filter para mas marami ang makita sa “%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Mag-sign out?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Mananatili sa computer na ito ang cart at wishlist mo. Makikita ulit ang mga order at membership kapag nag-sign in ka.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Size chart</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Unit ng mga size</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>I-sort: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Mga tool</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Walang tool sa ngayon.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Number ng parcel o order</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Nasa email ito tungkol sa shipment.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Hindi namin kilala ang number na ito. I-check ito, o subukan ulit bukas: puwedeng abutin ng isang araw bago makita ang bagong parcel.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>I-track</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Hindi available ang page na ito</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Baka nailipat ito, o nasa ibang version.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Pindutin ang heart sa item at hihintayin ka nito rito. Babantayan din namin ang presyo.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Account mo: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Hinahanap ang account mo…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Walang naka-sign in</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Kailangan ng account para sa mga order, alert, at membership. Hindi para sa pagtingin at pagbili.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Hitsura</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Mga kulay</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Ayon sa desktop</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Sumusunod kung maliwanag o madilim ang desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Maliwanag</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Madilim</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Window frame ng desktop</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Title bar sa itaas ng mga tab, gaya ng ibang window</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>File</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Tingnan</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Pumunta</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Tulong</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Mga sinabi</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Sabihin kung ano ang hinahanap mo, o kung para saan.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Kanselahin ang tawag</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Ituloy sa chat, para makapag-type din</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Tawag kay %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Tagal ng tawag: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Ipakita sa chat</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Paliitin</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Isara, at ituloy sa chat</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Tapusin ang tawag at isara</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Picture lang</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Palakihin</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Ipakita ang tawag kay %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Tawag kay %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>I-expand sa buong page</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>I-track ito anumang oras sa Mga order.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>I-reload ang page</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Secure checkout sa Shopify  ·  Mananatili ang cart mo</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>May link sa page na ito na palabas ng checkout, papunta sa %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Buksan sa browser</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Hindi maipakita rito ang checkout</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Magpatuloy sa browser</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>Hindi pa naka-configure ang LOOMSTREET</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>I-run ang scripts/sync-secrets.sh sa project folder, tapos i-build ulit.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Mag-quit</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Browsing history</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Pangkalahatan</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Bansa at currency</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Wika ng shop</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Buksan ang mga item sa tabi ng grid</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Sa malapad na window, lalabas ang item sa tabi ng listahan kung saan mo ito nakita</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Unit ng mga sukat</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimeter at kilogram</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Inch at pound</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Page na walang pamagat</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>I-pause ang slideshow</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>I-play ang slideshow</translation>
    </message>
    <message>
        <source>Space</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Space</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Mag-zoom out</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Mag-zoom in</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Hindi ma-load ang picture na ito</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Bansa at wika: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Bansa at wika</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Wika</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Maghanap ng wika</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Maghanap ng bansa o currency</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Mga wika</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Mga bansa</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Walang wikang tugma sa “%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Walang bansang tugma sa “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Buksan</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Sa window</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Banner sa itaas nito, sa loob ng ilang segundo.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Sa desktop</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Kung saan ipinapakita ng desktop mo ang mga notification ng app, kahit walang bukas na window.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>May tunog</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Numero sa icon ng app</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Kung ilan pa ang hindi mo nababasa.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Magpakita ng halimbawa</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Tungkol saan</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Hindi na irerekomenda sa computer na ito.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Side panel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Buksan sa bagong tab</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Isara ang side panel</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Lapad ng side panel</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Tulungan ang store na pumili ng ipapakita</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Ipinapaalam sa store, nang walang pangalan mo, kung aling mga page ang binuksan, aling mga item ang tiningnan, inilagay sa cart, at binili, at kung kailan biglang nagsara ang app. Kapag naka-off, ang kailangan lang ang ipinapadala.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Alinman ang piliin mo</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Ang kailangan ay ang mismong hinihingi mo</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Kailangang makarating sa store ang mga page na binubuksan mo, mga search mo, cart mo, at mga order mo.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Nananatili sa computer na ito ang mga sine-save mo</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Ang wishlist mo, mga tiningnan mo, at mga hinanap mo, hanggang i-clear mo ang mga ito.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Nasa keyring ang sign-in mo</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Kung walang keyring, nasa file na ikaw lang ang makakabasa. Tumatagal ito nang 60 araw, o hanggang mag-sign out ka.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Na-save ang screenshot</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Hindi ma-save ang screenshot</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>I-check kung may espasyo pa sa Pictures folder mo.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Ipakita ang folder</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Maghanap, o mag-paste ng link</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Maghanap gamit ang picture…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Tunog</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mga update</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Mga setting</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Mga seksyon</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Magpatuloy gamit ang %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Sina-sign in ka…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>Magbubukas ang %1 sa browser mo. Mag-sign in doon, at naka-sign in ka na rin dito.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Nakopya na</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Kopyahin ang address</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Para sa browser na hindi kusang bumukas</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Walang nangyari rito?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>I-paste ang link kung saan nagtapos ang browser mo</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Nagsisimula ito sa “wrenfieldstore://”. Ipinapakita ito ng ilang browser sa address bar.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Tapusin ang pag-sign in</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Gawin ang account mo</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Mag-sign in sa account mo</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Mga paraan ng pag-sign in</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Code sa email</translation>
    </message>
    <message>
        <source>Password</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Password</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Nagpadala kami ng code sa %1. Baka abutin ng isang minuto bago dumating.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Mag-e-email muna kami ng code, para sigurado kaming sa iyo ang address.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Mag-e-email kami ng code na pang-sign in. Hindi mo kailangan ng password.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Verification code</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Ipadala ulit pagkalipas ng %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Ipadala ulit</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Ipadala ulit ang code</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Password (hindi bababa sa 6 na character)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Pangalan (optional)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Nakalimutan ang password? Mag-sign in na lang gamit ang code sa email</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>I-email sa akin ang code</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>o magpatuloy gamit ang</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mic</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Itigil</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Subukan</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Itigil ang pakikinig sa mic</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Subukan ang mic</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Lakas ng boses</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Ginagamit ito sa tawag.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Magsalita: sinusundan ng bar ang boses mo. Walang lumalabas sa computer na ito.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Ipinapakita kung gaano kalakas ang boses mo. Walang lumalabas sa computer na ito.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Speaker</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>Mina-mute ng %1 ang mic nasaan ka man, hangga&apos;t may tawag.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>Mina-mute ng M ang mic sa window ng tawag.</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Hanapin ang “%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Kamakailan</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Mga tiningnan at na-save</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Walang maisip na item. Pindutin ang Enter para hanapin sa lahat.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>para pumili</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>para isara</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Alisin ang “%1” sa mga kamakailang search</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Picture: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Magbubukas sa browser</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Sumulat ng message</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Mag-attach ng picture o PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Mga picture at PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>I-drop dito ang picture o PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Paano kami makakatulong?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Magtanong tungkol sa order, return, o size mo. Makakatulong din ang mga picture.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Nasaan na ang order ko?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>May gusto akong i-return</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Anong size ang kukunin ko?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Naglo-load</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Isara ang %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Bagong tab sa kanan</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>I-unpin ang tab</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>I-pin ang tab</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Ilipat ang tab sa bagong window</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Buksan ulit ang isinarang tab</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Isara ang tab</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Isara ang ibang tab</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>I-expand ang sidebar</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>I-collapse ang sidebar</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Mga tab</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Bagong tab</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Bumalik</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Sumulong</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Inalis sa: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>I-update</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Huling na-check: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Hindi pa na-check</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Hindi kayang mag-update nang kusa ng kopyang ito ng LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>Kusang naghahanap ng bagong version ang LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Hindi muna kusang naghahanap ng bagong version ang LOOMSTREET.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Galing ang mga bagong version sa pinagkunan mo nito. Puwede ka pa ring mag-check dito.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Sa pagbukas at tuwing anim na oras. Dina-download sa background ang makita nito at ini-install kapag nag-quit ka; kung hindi puwede, sasabihan ka.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>In-pause ito ng store. Puwede ka pa ring mag-check dito.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Mag-check ng update…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Ano ang bago</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Laktawan ang version na ito</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>I-minimize</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>I-restore</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>I-maximize</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Isara ang window</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Secure na connection sa %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Hindi secure ang connection</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Na-delete na ang account mo.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Na-sign out ka bago ma-delete ang account mo. Mag-sign in ulit para i-delete ito.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Shipping</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Mga buwis</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln parcel</numerusform>
            <numerusform>%Ln na parcel</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Kumpirmado</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Naka-pack na</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Kinansela</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Pinoproseso</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Hinihintay ang courier</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Inihahatid na</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>May problema sa delivery</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Ni-request ang return</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Aprubado ang return</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Na-refund na</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Hindi tinanggap ang return</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 at %Ln pa</numerusform>
            <numerusform>%1 at %Ln pa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Hanggang %Ln character lang.</numerusform>
            <numerusform>Hanggang %Ln na character lang.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Maglagay ng phone number, gaya ng %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Maglagay ng petsa, gaya ng %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Maglagay ng petsang nakalipas na.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>May inilagay kang hindi tinanggap. I-check ito at subukan ulit.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Maglagay ng valid na email address.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Mali o expired na ang code. Mag-request ng bago.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Masyadong maraming attempt. Maghintay ng isang minuto at subukan ulit.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Hindi tugma ang email at password. Subukan ulit o mag-sign in gamit ang code sa email.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Hindi pa available ang ganitong pag-sign in.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Walang email address na magagamit namin sa account na iyan. Sumubok ng ibang paraan.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Kinansela ang pag-sign in.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Hindi natuloy ang pag-sign in. Subukan ulit.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Ilagay ang anim na digit ng code.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Pumili ng password na hindi bababa sa 6 na character.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Ilagay ang password mo. Hindi ito bababa sa 6 na character.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Hindi iyan ang link kung saan nagtapos ang pag-sign in mo. Nagsisimula ito sa “wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Help center ng LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Mga kasunduan</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Bagong window</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>I-pin o i-unpin ang tab</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Iurong ang tab</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Isulong ang tab</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Buksan sa buong page ang item sa side panel</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Buksan sa bagong tab ang item sa side panel</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Mag-screenshot</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Pumunta sa simula ng seksyon</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Susunod na tab</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Nakaraang tab</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Tampok</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Pinakabago</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Presyo: mababa pataas</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Presyo: mataas pababa</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Pinakamabenta</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ngayong araw</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Kahapon</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Pambabae</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Panlalaki</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Luxury</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Mga bag</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Mga accessory</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Mula %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Hanggang %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Bago</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Isa na lang</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>%Ln na lang</numerusform>
            <numerusform>%Ln na lang</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Pinakatugma</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Hindi puwedeng i-return ang item na ito</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>I-check ang size at kulay bago mag-order</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Ginawa para sa iyo</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Maibabalik lang kung may sira pagdating</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Made to order, kaya maglaan ng dagdag na oras</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Sa loob ng 30 araw, hindi pa nasusuot, kumpleto ang kasama</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Itabi ang box, dust bag, at mga papeles</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Sa loob ng 30 araw, walang marka ang swelas, nasa box</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Isukat muna sa loob ng bahay</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Sa loob ng 30 araw, hindi pa nasusuot, may tag pa</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Pumili muna ng %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln item sa cart mo</numerusform>
            <numerusform>%Ln na item sa cart mo</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Hindi magamit ang code na iyan. Subukan ulit.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>Hindi puwede ang “%1” sa mga item sa cart mo.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>May LIBRENG worldwide shipping ka na</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Magdagdag ng %1 para sa LIBRENG worldwide shipping</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Na-place na ang order. Lalabas ito sa Mga order sa loob ng ilang minuto.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Na-place na ang order %1. Lalabas ito sa Mga order sa loob ng ilang minuto.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln item  ·  ipinadala sa email mo ang confirmation</numerusform>
            <numerusform>%Ln na item  ·  ipinadala sa email mo ang confirmation</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Masyadong matagal nag-load ang page.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Palabas ng checkout ang page.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Huminto sa paggana ang page.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Hindi masimulan ang checkout. Subukan ulit.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Mas mura na nang %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>trabaho</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>date night</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>party</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>kasalan</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>bakasyon</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>biyahe</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>araw-araw</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>weekend</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>eskuwela</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>job interview</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>graduation</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>festival</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>beach</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>gimik</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>gym</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>pormal na okasyon</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Mga bagong dating</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Batay sa mga gusto mo</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Bago ngayong linggo</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Bago ngayong linggo</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Piling-pili</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Bago ngayong linggo · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Batay sa mga gusto mo</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Gusto ng mga shopper na tulad mo</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Batay sa mga tiningnan mo</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Trending ngayon</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Tugma sa search mong %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Hilig mo: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Para sa %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Style pick: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>sweet</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>vintage</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>elegante</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalist</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>romantic</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>streetwear</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>gothic</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>preppy</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>French</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>edgy</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>punk</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>coquette</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>casual</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>boho</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>festival</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>klasiko</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>sporty</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>chic</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>grunge</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Korean</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>modernong Chinese</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>old money</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>quiet luxury</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>dark academia</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>balletcore</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>cottagecore</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>sexy</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>cute</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>astig</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>feminine</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>androgynous</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>workwear</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>pormal</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>glam</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>avant-garde</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>utility</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>western</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>resort wear</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Home</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Sale</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Inbox</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Masyadong maraming attempt. Maghintay sandali at subukan ulit.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Nag-expire na ang session mo. Mag-sign in ulit.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Ilagay ang email address mo.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Mukhang may maling detalye. I-check ang mga ito at subukan ulit.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>Nagkakaproblema ang LOOMSTREET ngayon. Subukan ulit maya-maya.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Hindi iyon gumana. Subukan ulit.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>May hindi inaasahang sagot. Subukan ulit.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Hindi maabot ang LOOMSTREET. Subukan ulit.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Kulang ang configuration ng app.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Nag-time out ang request. Subukan ulit.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln notification pa ang naghihintay sa inbox mo.</numerusform>
            <numerusform>%Ln pang notification ang naghihintay sa inbox mo.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Mga notification ng system</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Mga update sa account at serbisyo</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Mga update sa order</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Order na kumpirmado, na-ship, at naihatid na</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Mga refund at return</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Mga na-refund at update sa return</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Mga sagot ng customer service</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Kapag sumagot sa iyo ang customer service</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Available na ulit ang mga item na hinihintay mo</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Mas mura na ang mga na-save o tiningnang item</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktibidad sa Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Mga like, comment, bagong follower, at message</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Pagbabago ng tier, points, at bagong coupon</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Mga promo at event</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Mga sale, bagong drop, at event ng store</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Nagpadala ng attachment</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Na-place na ang order</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Kumpirmado na ang order mo. Lalabas ito sa Mga order sa loob ng ilang minuto.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Kumpirmado na ang order %1. Lalabas ito sa Mga order sa loob ng ilang minuto.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>Hindi nakapag-update ang LOOMSTREET</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>I-click ang I-update sa itaas ng window para i-install ang bagong version mula sa disk image.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Preview ng notification</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Dito lalabas ang mga bagong update sa order at mga sagot ng customer service.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Closet</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Lahat ng damit mo, nasa iisang lugar</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Outfit studio</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Pagsamahin ang mga item at tingnan bilang isang look</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Lookbook</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>Mga outfit na itinabi mo</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Mga outfit idea</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Mga bagong paraan para isuot ang nasa closet mo</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Payo sa size</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Ang mga sukat mo, at ang size na kasya</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Maghanap gamit ang picture</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Hanapin ang item gamit ang picture nito</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>I-compare</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Hanggang apat na item, magkakatabi</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Nagche-check ng update…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Updated ka na</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Dina-download ang LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Chine-check ang download…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Ini-install ang LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Hindi makapag-check ng update</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Hindi ma-download ang update</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Handa nang i-install</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>I-install ang update</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>Handa nang i-install ang %1</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 ang pinakabagong version.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>Magsasara ang LOOMSTREET, at papalit ang bagong version.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Na-download na. I-relaunch para matapos, o mai-install ito sa susunod mong pag-quit.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Sa window na kabubukas lang, i-drag ang LOOMSTREET sa Applications at piliin ang Replace. Tapos, buksan ulit ang LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>Hindi mapalitan ng LOOMSTREET ang sarili nito sa computer na ito. I-install na lang ang bagong version mula sa disk image. Ilang segundo lang ito.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Hindi na sinusuportahan ang version mo.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Na-download na ang update. I-relaunch ang LOOMSTREET para matapos, o mai-install ito sa susunod mong pag-quit.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Hindi makapag-check ng update. I-check ang connection mo at subukan ulit.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Hindi natuloy ang download (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Kulang ang download o nabago habang papunta. Subukan ulit.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Hindi mabasa ang na-download na file.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Hindi pirmado ng LOOMSTREET ang download, kaya hindi ito binuksan.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>I-download at i-install</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>I-relaunch para mag-update</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Buksan ang disk image</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Mukhang offline ka.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Masyadong natagalan si Mira sa pagsagot.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Masyadong mabilis ang pagpapadala mo ng message. Maghintay muna sandali.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Hindi maipadala ang message na ito sa ganitong anyo.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>Nagkakaproblema ang LOOMSTREET ngayon.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Hindi maabot ang LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Pumili ng size para sa %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Na-sold out na kaya hindi naidagdag: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Hindi masimulan ang checkout. I-check ang connection mo at subukan ulit.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Mukhang mali ang tangkad o timbang. I-check ang mga numero at unit.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Mukhang mali ang isa sa mga sukat. I-check ang numero, o iwanang blangko.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Maluwag</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Hapit</translation>
    </message>
    <message>
        <source>Regular</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Regular</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Paano ito i-style: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Hindi pa nakumpirma ang message na ito. Puwede mong subukan ulit.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Updated ang usapan</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Sumasagot si Mira</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Sumasagot si Mira. Maipapadala mo ang mga ito maya-maya.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Naka-save ang mga topic sa computer na ito. Natatandaan ni Mira ang mga napag-usapan ninyo.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Tulungan akong maghanap</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>I-style ako mula sa closet ko</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Ano ang isusuot ko ngayong gabi</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>Walang pahintulot ang LOOMSTREET na makita kung nasaan ka. I-type na lang ang lungsod mo.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Hindi mahanap ang location mo. I-type na lang ang lungsod mo.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Hindi kilala ang lungsod na iyan. Subukan ang mas malaking lungsod na malapit.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Hindi makasagot si Mira ngayon. Subukan ulit maya-maya.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>May ibang tawag si Mira. Subukan ulit pagkalipas ng isang minuto.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Naputol-putol ang linya. Pakiulit?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Naputol ang linya. Tumawag ulit para magpatuloy.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Naka-off ang access sa mic. I-on ito sa Mga Setting ng System › Privacy at Seguridad › Mic, tapos tumawag ulit.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Hindi masimulan ang mic. I-check kung may nakakonekta, tapos tumawag ulit.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>I-mute ang mic habang nasa tawag</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Naidagdag sa cart mo</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Naidagdag ang %1 sa cart mo</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Hindi ito maidagdag. Subukan sa product page.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Dadalhin kita roon…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Binubuksan ang %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Default ng system</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Hindi nakakonekta</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Outerwear</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Mga top</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Mga bottom</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Mga dress</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Mga sapatos</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Mga extra</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Presko</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Maaraw</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Medyo maulap</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Makulimlim</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Mahamog</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Umaambon</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Maulan</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>May snow</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Paulan-ulan</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Makulog at makidlat</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Wala na ang file na ito.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Hindi mabasa ang file na ito.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Walang laman ang file na ito.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Mas malaki sa 10 MB ang file na ito. Pumili ng mas maliit.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Mga picture at PDF file lang ang puwedeng ipadala.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Baka hindi nakarating ang message na ito.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Mga nakatago</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Papunta na</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Naihatid na</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Mag-message sa customer service</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Usapan kasama ang customer service</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
