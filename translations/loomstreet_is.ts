<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="is" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Þú ert hér</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Opna alla síðuna</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Sendi…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Sýna minna</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Sýna allt</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter sendir, Shift+Enter byrjar nýja línu</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senda</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reyna aftur</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjarlægja</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Fjarlægja: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Fyrr</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Aftur að árinu</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Síðar</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Opið</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Lokað</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Fara í það nýjasta</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln ný skilaboð</numerusform>
            <numerusform>%Ln ný skilaboð</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Nettenging virðist ekki vera til staðar. Athugaðu tenginguna og reyndu aftur.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Loka</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Fela lykilorðið</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Sýna lykilorðið</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, áður %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Uppselt</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Augnablik</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Taka af óskalista</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Setja á óskalista</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Leit</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Fyrri</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næsta</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, uppselt</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, hentar þér best</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Einkunn %L1 af 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Einkunn %L1 af 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Færri</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Fleiri</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Afturkalla</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Aðgangurinn þinn</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Skrá út</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Við munum eftir fataskápnum þínum</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Hér má skoða og kaupa allt án aðgangs. Með aðgangi veit búðin hvar pakkarnir þínir eru og eftir hverju þú bíður.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Skrá inn</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Stofna aðgang</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Pantanir á einum stað</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Hvar hver pakki er, og vöruskil án þess að leita að kvittun</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Skilaboð þegar máli skiptir</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Stærðin þín er komin aftur eða verðið hefur lækkað</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Félagsaðild og afsláttarmiðar</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Punktar, þrep og það sem þau veita</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Greiðsla sem þekkir þig</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Heimilisfangið þitt er þegar á sínum stað</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Þjónustuver</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Pantanir, vöruskil og stærðir</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Pantanir</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Á leiðinni og fyrri kaup</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Rekja pakka</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Með pakka- eða pöntunarnúmeri</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Vöruskil</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Skila vöru</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Fyrir þig</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Óskalisti</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Ekkert vistað enn</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln vara</numerusform>
            <numerusform>%Ln vörur</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Vöruvaktir</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Aftur fáanlegt og lægra verð</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Félagsaðild</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Þrepið þitt og punktar</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Afsláttarmiðar</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Til að nota við greiðslu</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Aðgangur</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Án aðgangs</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Prófíll</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Nafn, afmælisdagur og fréttabréf</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Persónuvernd</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Hvað búðin fær að vita um þig</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Geymt á þessari tölvu</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Eyða aðgangi…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Lyklakippan svarar ekki</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Hún geymir innskráninguna þína á öruggum stað og án hennar er ekki hægt að skrá sig inn. Taktu hana úr lás og reyndu aftur.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Aftur fáanlegt</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Verðlækkun</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Aftur fáanlegt</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Lægra verð núna</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 þegar vaktin hófst</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Hætta þessari vakt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln vöruvakt</numerusform>
            <numerusform>%Ln vöruvaktir</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Við sendum þér tölvupóst á %1 þegar vara er aftur fáanleg eða verðið lækkar.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Engar vöruvaktir enn</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Ef vara er uppseld í þinni stærð ýtirðu á „Láta vita þegar hún kemur aftur“. Við aðrar vörur: „Láta vita af verðlækkun“.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Nýjar vörur</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Skráðu þig inn til að sjá vöruvaktirnar þínar</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Við látum vita þegar vara er aftur fáanleg í þinni stærð eða kostar minna.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Við sendum þér ekki tölvupóst um þetta.</numerusform>
            <numerusform>Við sendum þér ekki tölvupóst um þetta.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln vara</numerusform>
            <numerusform>%1, %Ln vörur</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Hönnuðir</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln hönnuður</numerusform>
            <numerusform>%Ln hönnuðir</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Finna hönnuð</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Hreinsa</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Bókstafir</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Aðrir hönnuðir</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Hönnuðir sem byrja á %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Enginn hönnuður fannst fyrir „%1“</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Athugaðu stafsetninguna eða skoðaðu þá alla.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Sýna alla hönnuði</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Ekkert hér enn</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Nýjar vörur koma í hverri viku.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Skoða</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln umsögn</numerusform>
            <numerusform>%Ln umsagnir</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>Selt: %Ln</numerusform>
            <numerusform>Selt: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Forsala</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Oftast valið: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Hjálpaðu mér að stílisera þetta</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Bera saman</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Við hlið þess sem þú vistaðir eða skoðaðir</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>FRÍ heimsending um allan heim</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Þegar keypt er fyrir %1 eða meira</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Gott að vita</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Aðflutningsgjöld innifalin</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Sendingarkostnaður reiknast við greiðslu</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Við sendum tölvupóst þegar hún kemur aftur</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Láta vita þegar hún kemur aftur</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Komið í körfu</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Setja í körfu</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Ýttu til að draga til baka</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Opna greiðslu…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Kaupa núna</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Símtal: %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Opna í sérglugga</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Slíta</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Slíta símtali</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Sýna símtalið</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Hringja: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Hringja aftur</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Kveikt er á hljóðnemanum</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Slökkt er á hljóðnemanum</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Hringi…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Hugsar</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Talar</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Þaggað</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Hlustar</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Símtali lokið</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Kveikja á hljóðnema</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Þagga</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Afsláttarkóði</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Virkja</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Ekki tókst að hlaða körfuna</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Vörurnar þínar eru á sínum stað. Athugaðu tenginguna og reyndu aftur.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Karfan þín er tóm</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Vörur sem þú bætir við birtast hér.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Halda áfram að versla</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Tekið úr körfu: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Fyrri karfan þín er útrunnin. Í henni var %Ln vara.</numerusform>
            <numerusform>Fyrri karfan þín er útrunnin. Í henni voru %Ln vörur.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Setja aftur í</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Fjöldi: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Taka úr körfu</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Loka</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Karfa</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Karfa</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Sýna sem hliðarspjald</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Millisamtala</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Afsláttur</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Samtals</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Aðflutningsgjöld innifalin · Sendingarkostnaður reiknast við greiðslu</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Ganga frá kaupum</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Ljúktu greiðslunni í greiðsluglugganum. Karfan þín helst óbreytt.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Ekki fáanlegt</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Lína</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln ný síðustu 30 daga</numerusform>
            <numerusform>%Ln nýjar síðustu 30 daga</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Þessi lína er ekki fáanleg</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Hún gæti hafa fengið nýtt nafn eða er ekki seld í þínu landi (%1)</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Engar vörur passa við þessar síur</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Fjarlægðu síu til að sjá meira.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Fullkomnaðu lúkkið</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Vörur sem passa við</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Líka í uppáhaldi</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Hjá þeim sem skoðuðu þessa vöru</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Þér gæti líka líkað</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Bæta við vörum til að bera saman</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Bæta við vöru</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Af óskalistanum og því sem þú skoðaðir</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Vistaðu vörur eða skoðaðu þær og bættu þeim við hér.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Bera saman við: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Stærðir</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Efni</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Taka úr samanburði</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Ekki fáanlegt í þínu landi.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>ekki gefið upp</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Stærðir: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Aftur í byrjun</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Hverju aðrir klæðast</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Litast um</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Fylgist með</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Nýtt frá hönnuðunum þínum</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Sjá hvað er nýtt</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Fataskápur</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Í hverju á ég að vera í dag?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Opna fataskápinn</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Pantanirnar þínar og vöruvaktir</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Félagsaðildin þín</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Sjá hvað fylgir henni</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Hvar er pakkinn minn?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Pöntun %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Skoða pöntunina</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Verðlækkanir</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Vörurnar þínar kosta minna núna</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Geymdu það sem þú elskar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln vara vistuð</numerusform>
            <numerusform>%Ln vörur vistaðar</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Skoða óskalistann</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Eyða aðganginum þínum?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Prófílnum, vöruvöktunum, félagsaðildinni og pantanalistanum þínum er eytt fyrir fullt og allt. Pantanir á leiðinni skila sér samt. Þetta er ekki hægt að afturkalla.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Sláðu inn netfangið þitt til að staðfesta</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Eyða aðgangi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hætta við</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Línur</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Síur</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Hreinsa allar síur</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Leita í: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Ekkert með því nafni</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Sýna færri</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Sýna allt (%Ln)</numerusform>
            <numerusform>Sýna allt (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Frá</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Allt að</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Sýna vörur</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Sýna %Ln vöru</numerusform>
            <numerusform>Sýna %Ln vörur</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Loka síum</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln valin, hægt að bera saman %L1</numerusform>
            <numerusform>%Ln valdar, hægt að bera saman %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln valin</numerusform>
            <numerusform>%Ln valdar</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Veldu tvær til fjórar vörur</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Lokið</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Velja</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Nýjast fyrst</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Verð: lægsta fyrst</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Verð: hæsta fyrst</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Þú hefur séð allt (%Ln)</numerusform>
            <numerusform>Þú hefur séð allt (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Lína: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Opna: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Veldu stærð</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Stærð</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Hentar þér best: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Í körfunni þinni</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Skipta út</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Sleppa</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 af %Ln vöru</numerusform>
            <numerusform>%L1 af %Ln vörum</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Í staðinn fyrir: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Ekkert svipað í augnablikinu.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Val Miru</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Lúkkið þitt</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Veldu stærðirnar, skiptu út því sem þér líkar síður og slepptu því sem þú átt.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>tommur</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Málin þín</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira reiknar stærðirnar þínar út frá þeim. Þau fara í samtalið ykkar og afrit er geymt á þessari tölvu þar til þú skráir þig út.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Eining</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrakerfi</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Breskt kerfi</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Hæð (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>fet</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Þyngd (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>pund</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>Brjóstmál (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Mitti (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Mjaðmir (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Hafðu þetta autt ef þú veist það ekki.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Óskasnið</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Senda til Miru</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Eyða af þessari tölvu</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Búa til lúkk út frá þessu</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Velja stærð og setja í körfu</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Skrifa til: %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Lúkk: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Mínar vörur · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Stílisera með mínum vörum</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Veður</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Meira</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Skoða lúkkið: %Ln vara í þinni stærð</numerusform>
            <numerusform>Skoða lúkkið: %Ln vörur, allar í þinni stærð</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nýtt umræðuefni</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Umræðuefni…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Endurnýja</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Stílisera með mínum vörum…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Málin mín…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Veður…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Sýna við hlið síðunnar</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Tillögur</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Senda: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Samtal: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Endurnefna</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eyða</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Heiti umræðuefnis</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Eyða „%1“?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Geyma</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Umræðuefni</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Þú</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Skrá málin mín</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 notar þetta fyrst og bætir aðeins við nýju þar sem eitthvað vantar.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Ekkert til að stílisera með enn</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Vörur í körfunni þinni og á óskalistanum birtast hér.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln valin, fleiri komast ekki að</numerusform>
            <numerusform>%Ln valdar, fleiri komast ekki að</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Í körfunni þinni</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Á óskalistanum þínum</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Hvar ertu? Lúkkið verður í takt við daginn.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Klæddu mig eftir veðri</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Borg eða bær</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Velja</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Nota staðsetninguna mína</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Fyrir hvaða tilefni ertu að klæða þig?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Nefndu tilefnið, vöru sem þú elskar eða hvað má eyða miklu, og %1 setur lúkkið saman.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Skráðu þig inn til að sjá það sem varðar pantanirnar þínar og vöruvaktir.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Sýna</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Allt</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Kerfi</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Þjónustuver</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Tilkynningar</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Skráðu þig inn til að sjá tilkynningarnar þínar</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Ekkert nýtt</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Hér segir frá pöntunum á leiðinni, vörum sem eru aftur fáanlegar og lægra verði.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Hér birtist það sem varðar pantanirnar þínar og vörurnar sem þú fylgist með.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Ólesið</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Merkja allt sem lesið</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Tilkynningastillingar</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Væntanlegt %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Pöntun</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Pantað %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Pakki</numerusform>
            <numerusform>Pakkar</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Vörur</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Vöruskil og endurgreiðslur</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Þessi pöntun er ekki hér</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Nýja pöntunin þín birtist hér eftir nokkrar mínútur.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Hún gæti tilheyrt öðrum aðgangi.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Skráðu þig inn til að sjá þessa pöntun</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Hægt er að rekja pakka eftir númeri án aðgangs.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Fjöldi %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Falin</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Sýna pöntun aftur</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Fela pöntun</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Hvaða pantanir</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Á leiðinni</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Afhent</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Allar pantanirnar þínar eru faldar</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Ekkert á leiðinni</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Ekkert afhent enn</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Engin vöruskil</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Sumar þeirra eru faldar.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Sýna faldar pantanir</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Allar pantanir</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Pöntunin þín er á leið á þessa síðu</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Engar pantanir enn</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Það sem þú pantar birtist hér ásamt því hvar það er á leiðinni til þín.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Skráðu þig inn til að sjá pantanirnar þínar</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Hvar þær eru, hvað er í þeim og hvernig á að skila vöru.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Ekki sýnd með pöntunum þínum á þessari tölvu.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Skref %L1 af %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samantekt</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Afhendingarstaður</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Hefja vöruskil</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Pakki %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Enginn kannast við þetta númer enn</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Það getur tekið einn dag þar til flutningsaðilinn kannast við nýjan pakka.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Opna síðu flutningsaðilans</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Flutningsaðilinn hefur ekkert sagt um hann enn.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Ferill pakkans</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Tímabundið ekki í boði</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Þessi eiginleiki er í biðstöðu. Reyndu aftur síðar.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Taka af listanum</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Þessi vara er ekki fáanleg</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Hún gæti verið endanlega uppseld eða er ekki seld í þínu landi (%1).</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Við sendum tölvupóst þegar verðið lækkar</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Láta vita af verðlækkun</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln vara kostar minna en þegar þú sást hana</numerusform>
            <numerusform>%Ln vörur kosta minna en þegar þú sást þær</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Ekkert til að fylgjast með enn</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Engar verðlækkanir núna</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Vistaðu vöru eða skoðaðu hana og þú sérð hér þegar hún kostar minna.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Vörurnar sem þú vistaðir og skoðaðir kosta það sama og þegar þú sást þær, eða voru skoðaðar í öðrum gjaldmiðli.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Lokaútsala</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Myndir</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Mynd %L1 af %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, mynd %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Sjá allt</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Hef ekki áhuga</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Eftir %Ln dag: %1</numerusform>
            <numerusform>Eftir %Ln daga: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Búðin svaraði: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Umsagnir</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Fleiri umsagnir</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Lýsing</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Helstu kostir</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Nánar</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Spurningar og svör</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nafn</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Sími</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Afmælisdagur</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Veldu dagsetningu</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Netfang</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Netfangið sem þú notar við innskráningu</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Henda breytingum</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Vistað</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Hjá okkur síðan %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Fréttabréf</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Með tölvupósti</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Nýjar vörur og tilboð, á %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Með SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Þarf símanúmerið þitt hér að ofan</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Skráðu þig inn til að sjá prófílinn þinn</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Nafnið þitt, símanúmer og hvað við megum senda þér.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Uppgötva</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Litastu aðeins um og hér finnurðu það sem passar við.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Nýlega skoðað</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Hreinsa allt</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Ekkert skoðað enn</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Vörurnar sem þú skoðar safnast hér saman svo að þú finnir þær aftur.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Skráðu þig inn og við sendum þér tölvupóst þegar hún er komin aftur.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Tölvupósturinn fer á %1. Ýttu aftur ef þú vilt hann ekki lengur.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Tölvupósturinn fer á %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Stækka mynd %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln niðurstaða fyrir „%1“</numerusform>
            <numerusform>%Ln niðurstöður fyrir „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Að hverju leitarðu?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Engar niðurstöður fyrir „%1“</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Athugaðu stafsetninguna, prófaðu víðara orð eða skoðaðu nýjar vörur.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Ekkert passar við þessar síur</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Fjarlægðu síu eða tvær til að sjá meira fyrir „%1“</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Skrá út?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Karfan þín og óskalistinn verða áfram á þessari tölvu. Pantanir og félagsaðild birtast aftur þegar þú skráir þig inn á ný.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Stærðatafla</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Mælieining stærða</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Röðun: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Verkfæri</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Engin verkfæri eru í boði í augnablikinu.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Pakka- eða pöntunarnúmer</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Það stendur í tölvupóstinum um sendinguna.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Við könnumst ekki við þetta númer. Athugaðu það eða reyndu aftur á morgun: það getur tekið einn dag að skrá nýjan pakka.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Rekja</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Þessi síða er ekki í boði</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Kannski var hún færð eða tilheyrir annarri útgáfu.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Ýttu á hjartað við vöru og hún bíður þín hér. Við fylgjumst líka með verðinu.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Aðgangurinn þinn: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Leita að aðganginum þínum…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Enginn er skráður inn</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Pantanir, vöruvaktir og félagsaðild krefjast aðgangs. Það þarf hann ekki til að skoða og kaupa.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Útlit</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Litir</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Eins og skjáborðið</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Fylgir skjáborðinu milli ljóss og dökks útlits</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Ljóst</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dökkt</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Gluggarammi skjáborðsins</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Titilstika fyrir ofan flipana, eins og í öðrum gluggum</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Skrá</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Skoða</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Fara</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjálp</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Skjátexti símtals</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Segðu að hverju þú leitar eða fyrir hvað það er.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Hætta við símtalið</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Spjall</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Halda áfram í spjallinu til að skrifa líka</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Símtal: %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Lengd símtals: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Sýna í spjallinu</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Minnka</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Loka og halda áfram í spjallinu</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Slíta símtali og loka</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Aðeins myndin</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Stækka</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Sýna símtalið: %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Símtal: %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Stækka í heila síðu</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Fylgstu með henni hvenær sem er undir Pantanir.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Endurhlaða síðuna</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Örugg greiðsla hjá Shopify  ·  Karfan þín helst óbreytt</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Tengill á þessari síðu leiðir út úr greiðslunni, á %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Opna í vafra</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Ekki er hægt að sýna greiðsluna hér</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Halda áfram í vafra</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET er ekki stillt</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Keyrðu scripts/sync-secrets.sh í verkefnismöppunni og byggðu svo aftur.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Hætta</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Skoðunarferill</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Almennt</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Land og gjaldmiðill</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Tungumál búðarinnar</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Opna vörur við hlið listans</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Í breiðum gluggum birtist vara við hlið þess staðar þar sem hún fannst</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Mál í</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Sentimetrar og kílógrömm</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Tommur og pund</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Ónefnd síða</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Gera hlé á myndasýningu</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Spila myndasýningu</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Bilslá</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Minnka aðdrátt</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Auka aðdrátt</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Ekki tókst að hlaða þessari mynd</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Markaður og tungumál: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Markaður og tungumál</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Tungumál</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Leita að tungumáli</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Leita að landi eða gjaldmiðli</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Tungumál</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Lönd</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Ekkert tungumál fannst fyrir „%1“</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Ekkert land fannst fyrir „%1“</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Opna</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Í glugganum</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Borði efst í nokkrar sekúndur.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Á skjáborðinu</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Þar sem skjáborðið sýnir tilkynningar forrita, líka þegar enginn gluggi er opinn.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Með hljóði</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Fjöldi á tákni forritsins</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Hve mikið er ólesið.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Sýna dæmi</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Um hvað</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Ekki lengur mælt með þessu á þessari tölvu.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Hliðarspjald</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Opna í nýjum flipa</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Loka hliðarspjaldi</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Breidd hliðarspjalds</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Hjálpaðu búðinni að velja hvað hún sýnir</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Segir búðinni, án þess að nafnið þitt fylgi, hvaða síður og vörur eru skoðaðar, settar í körfu og keyptar, og hvenær forritið lokaðist óvænt. Ef slökkt er á þessu er aðeins það nauðsynlegasta sent.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Hvort heldur sem er</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Nauðsynlegt er það sem þú biður um</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Síðurnar sem þú opnar, leitirnar þínar, karfan og pantanirnar verða að berast búðinni.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Það sem þú geymir er áfram á þessari tölvu</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Óskalistinn þinn, það sem þú skoðaðir og það sem þú leitaðir að, þar til þú hreinsar það.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Innskráningin þín er í lyklakippunni</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Ef engin er til er hún í skrá sem aðeins þú getur lesið. Hún rennur út eftir 60 daga og alltaf þegar þú skráir þig út.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Skjámynd vistuð</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Ekki tókst að vista skjámyndina</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Athugaðu hvort pláss sé í myndamöppunni.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Sýna möppu</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Leitaðu eða límdu inn tengil</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Leita eftir mynd…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Hljóð</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Uppfærslur</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Stillingar</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Hlutar</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Halda áfram með %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Skrái þig inn…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 opnast í vafranum þínum. Skráðu þig inn þar og innskráningin gildir hér.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Afritað</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Afrita slóð</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Fyrir vafra sem opnaðist ekki sjálfkrafa</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Gerðist ekkert hér?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Límdu inn tengilinn sem vafrinn endaði á</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Hann byrjar á „wrenfieldstore://“. Sumir vafrar sýna hann í veffangastikunni.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Ljúka innskráningu</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Stofnaðu aðganginn þinn</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Skráðu þig inn á aðganginn þinn</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Innskráningarleiðir</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Kóði í tölvupósti</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lykilorð</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Við sendum kóða á %1. Það getur tekið smástund að berast.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Við sendum þér fyrst kóða í tölvupósti til að tryggja að netfangið sé þitt.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Við sendum þér innskráningarkóða í tölvupósti. Þú þarft ekkert lykilorð.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Staðfestingarkóði</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Senda aftur eftir %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Senda aftur</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Senda kóðann aftur</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Lykilorð (minnst 6 stafir)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nafn (valfrjálst)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Gleymt lykilorð? Skráðu þig frekar inn með kóða í tölvupósti</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Senda mér kóða í tölvupósti</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>eða halda áfram með</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Hljóðnemi</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stöðva</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Prófa</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Hætta að hlusta á hljóðnemann</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Prófa hljóðnemann</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Hljóðstyrkur</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Hann er í notkun í símtalinu.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Segðu eitthvað: stikan fylgir röddinni þinni. Ekkert fer út af þessari tölvu.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Sýnir hve hátt þú talar. Ekkert fer út af þessari tölvu.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Hátalari</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 þaggar hljóðnemann hvar sem þú ert, á meðan símtal stendur yfir.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M þaggar hljóðnemann í símtalsglugganum.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Tengill</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Leita að „%1“</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Nýlegt</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Skoðað og vistað</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Engin vara fannst. Enter leitar í þeim öllum.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>til að velja</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>til að loka</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Fjarlægja „%1“ úr nýlegum leitum</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Mynd: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Opnast í vafranum</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Skrifaðu skilaboð</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Bæta við mynd eða PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Myndir og PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Slepptu mynd eða PDF hér</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Hvernig getum við aðstoðað?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Spurðu um pöntun, vöruskil eða stærðina þína. Myndir hjálpa líka.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Hvar er pöntunin mín?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Mig langar að skila vöru</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Hvaða stærð ætti ég að taka?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Hleð</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Loka: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nýr flipi til hægri</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Losa flipa</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Festa flipa</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Færa flipa í nýjan glugga</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Opna lokaðan flipa aftur</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Loka flipa</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Loka öðrum flipum</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Opna hliðarstiku</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Fella saman hliðarstiku</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Flipar</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nýr flipi</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Til baka</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Áfram</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Valmynd</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Tekið af lista: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Uppfæra</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Síðast athugað: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Ekki athugað enn</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Þetta eintak af LOOMSTREET getur ekki uppfært sig sjálft.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET leitar sjálft að nýjum útgáfum.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET leitar ekki sjálft að nýjum útgáfum sem stendur.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Nýjar útgáfur koma þaðan sem þú fékkst forritið. Þú getur samt athugað hér.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Þegar forritið ræsist og á sex tíma fresti. Það sem finnst er sótt í bakgrunni og sett upp þegar þú hættir. Ef það er ekki hægt færðu að vita það.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Búðin hefur sett þetta í bið. Þú getur samt athugað hér.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Leita að uppfærslum…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Útgáfa %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Hvað er nýtt</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Sleppa þessari útgáfu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Lágmarka</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Endurheimta</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Hámarka</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Loka glugga</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Örugg tenging við %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Tengingin er ekki örugg</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Aðganginum þínum hefur verið eytt.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Útskráning varð áður en hægt var að eyða aðganginum. Skráðu þig inn aftur til að eyða honum.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Sending</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frítt</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Skattar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln pakki</numerusform>
            <numerusform>%Ln pakkar</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Staðfest</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Pakkað</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Afturkallað</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Í vinnslu</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Bíður flutningsaðila</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Í útkeyrslu</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Vandi við afhendingu</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Beðið um vöruskil</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Vöruskil samþykkt</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Endurgreitt</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Vöruskilum hafnað</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 og %Ln í viðbót</numerusform>
            <numerusform>%1 og %Ln í viðbót</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Notaðu mest %Ln staf.</numerusform>
            <numerusform>Notaðu mest %Ln stafi.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Sláðu inn símanúmer, til dæmis %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Sláðu inn dagsetningu, til dæmis %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Sláðu inn liðna dagsetningu.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Eitthvað sem þú slóst inn var ekki samþykkt. Athugaðu það og reyndu aftur.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Sláðu inn gilt netfang.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Kóðinn er rangur eða útrunninn. Biddu um nýjan.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Of margar tilraunir. Bíddu í mínútu og reyndu aftur.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Netfangið og lykilorðið passa ekki saman. Reyndu aftur eða skráðu þig inn með kóða í tölvupósti.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Þessi innskráningarleið er ekki í boði enn.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Þessi aðgangur er ekki með netfang sem við getum notað. Prófaðu aðra leið.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Hætt var við innskráningu.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Innskráning mistókst. Reyndu aftur.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Sláðu inn sex tölustafi kóðans.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Veldu lykilorð með minnst 6 stöfum.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Sláðu inn lykilorðið þitt. Það er minnst 6 stafir.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Þetta er ekki tengillinn sem innskráningin endaði á. Hann byrjar á „wrenfieldstore://“.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Hjálparmiðstöð LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Skilmálar</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nýr gluggi</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Festa eða losa flipa</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Færa flipa aftar</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Færa flipa framar</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Opna vöru hliðarspjaldsins á heilli síðu</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Opna vöru hliðarspjaldsins í nýjum flipa</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Taka skjámynd</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Allur skjárinn</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Fara á forsíðu hlutans</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Næsti flipi</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Fyrri flipi</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Sérvalið</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Nýjast</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Verð: lægsta fyrst</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Verð: hæsta fyrst</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Mest selt</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Í dag</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Í gær</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Konur</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Karlar</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Lúxus</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Töskur</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Fylgihlutir</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Frá %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Allt að %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Lokaútsala</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nýtt</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Aðeins ein eftir</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Aðeins %Ln eftir</numerusform>
            <numerusform>Aðeins %Ln eftir</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Passar best</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Ekki er hægt að skila þessari vöru</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Athugaðu stærð og lit áður en þú pantar</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Gert fyrir þig</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Aðeins hægt að skila ef varan er gölluð</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Framleitt eftir pöntun, svo gerðu ráð fyrir lengri tíma</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Innan 30 daga, ónotað og með öllu sem fylgdi</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Geymdu kassa, taupoka og pappíra</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Innan 30 daga, engin för á sólum, í kassanum</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Mátaðu þá fyrst innandyra</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Innan 30 daga, ónotað og með merkimiðum</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Veldu fyrst: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln vara í körfunni þinni</numerusform>
            <numerusform>%Ln vörur í körfunni þinni</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Ekki tókst að virkja kóðann. Reyndu aftur.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>„%1“ gildir ekki fyrir vörurnar í körfunni þinni.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Þú færð FRÍA heimsendingu um allan heim</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Bættu við %1 til að fá FRÍA heimsendingu um allan heim</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Pöntun móttekin. Hún birtist undir Pantanir eftir nokkrar mínútur.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Pöntun %1 móttekin. Hún birtist undir Pantanir eftir nokkrar mínútur.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln vara  ·  staðfesting send á netfangið þitt</numerusform>
            <numerusform>%Ln vörur  ·  staðfesting send á netfangið þitt</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Síðan var of lengi að hlaðast.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Síðan leiðir út úr greiðslunni.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Síðan hætti að virka.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Ekki tókst að opna greiðslu. Reyndu aftur.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>%1 ódýrara núna</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>vinnuna</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>stefnumótið</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>partíið</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>brúðkaupið</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>fríið</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>ferðalagið</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>hversdaginn</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>helgina</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>skólann</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>atvinnuviðtalið</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>útskriftina</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>tónlistarhátíðina</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>ströndina</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>kvöld úti á lífinu</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>brönsinn</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>ræktina</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>formleg tilefni</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Nýjar vörur</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Út frá því sem þú elskar</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Nýtt í vikunni</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Nýtt í vikunni</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Handvalið</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Nýtt í vikunni · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Út frá því sem þú elskar</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Vinsælt hjá fólki eins og þér</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Út frá því sem þú hefur skoðað</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Vinsælt núna</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Passar við leitina þína: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Þinn smekkur: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Fyrir %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Stíll: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>sætur</translation>
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
        <translation>glæsilegur</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>mínímalískur</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>rómantískur</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>götutíska</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>goth</translation>
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
        <translation>franskur</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>djarfur</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>pönk</translation>
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
        <translation>afslappaður</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>bóhem</translation>
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
        <translation>klassískur</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportlegur</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>smart</translation>
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
        <translation>kóreskur</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japanskur</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>nýkínverskur</translation>
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
        <translation>látlaus lúxus</translation>
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
        <translation>kynþokkafullur</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>krúttlegur</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>töff</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>kvenlegur</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>kynhlutlaus</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>vinnufatastíll</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>formlegur</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>glamúr</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>framúrstefna</translation>
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
        <translation>kúrekastíll</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>resort</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>Heim</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Útsala</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Innhólf</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Of margar tilraunir. Bíddu augnablik og reyndu aftur.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Lotan þín er útrunnin. Skráðu þig inn aftur.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Sláðu inn netfangið þitt.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Sumar upplýsinganna virðast ekki réttar. Athugaðu þær og reyndu aftur.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET á í vandræðum núna. Reyndu aftur eftir smástund.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Þetta tókst ekki. Reyndu aftur.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Óvænt svar barst. Reyndu aftur.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Ekki náðist samband við LOOMSTREET. Reyndu aftur.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Stillingar forritsins vantar.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Beiðnin rann út á tíma. Reyndu aftur.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln tilkynning í viðbót bíður í innhólfinu.</numerusform>
            <numerusform>%Ln tilkynningar í viðbót bíða í innhólfinu.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Kerfistilkynningar</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Nýtt um aðgang og þjónustu</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Nýtt um pantanir</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Pöntun staðfest, send og afhent</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Endurgreiðslur og vöruskil</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Greiddar endurgreiðslur og nýtt um vöruskil</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Svör frá þjónustuveri</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Þegar þjónustuverið svarar þér</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Vörur á vöruvaktinni þinni eru aftur fáanlegar</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Vistaðar eða skoðaðar vörur lækka í verði</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Virkni á Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Læk, athugasemdir, nýir fylgjendur og skilaboð</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Breytt þrep, punktar og nýir afsláttarmiðar</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Tilboð og viðburðir</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Útsölur, ný dropp og viðburðir búðarinnar</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Sendi viðhengi</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Pöntun móttekin</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Pöntunin þín er staðfest. Hún birtist undir Pantanir eftir nokkrar mínútur.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Pöntun %1 er staðfest. Hún birtist undir Pantanir eftir nokkrar mínútur.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET gat ekki uppfært sig</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Smelltu á Uppfæra efst í glugganum til að setja nýju útgáfuna upp af diskmyndinni.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Sýnishorn tilkynningar</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Nýtt um pantanir og svör frá þjónustuveri birtast hér.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Fataskápur</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Allt sem þú átt, á einum stað</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Dressstúdíó</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Settu vörur saman og sjáðu þær sem heild</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>Lúkkbók</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>Dressin sem þú geymdir</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Hugmyndir að dressum</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nýjar leiðir til að nota það sem er í fataskápnum</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Stærðarráðgjöf</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Málin þín og stærðin sem passar við þau</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Leita eftir mynd</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Finndu vöru eftir mynd af henni</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Bera saman</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Allt að fjórar vörur hlið við hlið</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Leita að uppfærslum…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Allt er uppfært</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Sæki LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Athuga niðurhalið…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Set upp LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Ekki tókst að leita að uppfærslum</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Ekki tókst að sækja uppfærsluna</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Tilbúið til uppsetningar</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Setja uppfærsluna upp</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 er tilbúið til uppsetningar</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 er nýjasta útgáfan.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET lokast og nýja útgáfan kemur í staðinn.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Sótt. Endurræstu til að ljúka, annars er uppfærslan sett upp næst þegar þú hættir.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Dragðu LOOMSTREET á Forrit í glugganum sem var að opnast og veldu Skipta út. Opnaðu svo LOOMSTREET aftur.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET gat ekki skipt sér út á þessari tölvu. Settu nýju útgáfuna heldur upp af diskmyndinni. Það tekur nokkrar sekúndur.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Útgáfan sem þú ert með er ekki lengur studd.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Uppfærslan er sótt. Endurræstu LOOMSTREET til að ljúka, annars er hún sett upp næst þegar þú hættir.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Ekki tókst að leita að uppfærslum. Athugaðu tenginguna og reyndu aftur.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Niðurhalið mistókst (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Niðurhalið var ófullkomið eða breyttist á leiðinni. Reyndu aftur.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Ekki tókst að lesa sóttu skrána.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Niðurhalið er ekki undirritað af LOOMSTREET og var því ekki opnað.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Sækja og setja upp</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Endurræsa til að uppfæra</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Opna diskmynd</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Nettenging virðist ekki vera til staðar.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira var of lengi að svara.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Þú sendir skilaboð of ört. Bíddu augnablik fyrst.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Ekki var hægt að senda þessi skilaboð eins og þau eru.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET á í vandræðum núna.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Ekki náðist samband við LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Veldu stærðir: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Seldist upp í millitíðinni og var ekki bætt við: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Ekki tókst að opna greiðslu. Athugaðu tenginguna og reyndu aftur.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Hæðin eða þyngdin virðist ekki rétt. Athugaðu tölurnar og einingarnar.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Eitt af þessum málum virðist ekki rétt. Athugaðu töluna eða hafðu reitinn auðan.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Vítt</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Aðsniðið</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Venjulegt</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Hjálpaðu mér að stílisera þetta: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Þessi skilaboð hafa ekki verið staðfest. Þú getur reynt aftur.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Samtalið er uppfært</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira er að svara</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira er að svara. Þú getur sent þetta eftir augnablik.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Umræðuefni eru vistuð á þessari tölvu. Mira man það sem ykkur hefur farið á milli.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Hjálpaðu mér að finna eitthvað</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Veldu dress úr fataskápnum mínum</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Í hverju á ég að vera í kvöld?</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET má ekki sjá hvar þú ert. Sláðu inn borg eða bæ í staðinn.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Staðsetningin þín fannst ekki. Sláðu inn borg eða bæ í staðinn.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Þessi staður þekkist ekki. Prófaðu stærri stað í grenndinni.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira getur ekki svarað núna. Reyndu aftur eftir augnablik.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira er í öðru símtali. Reyndu aftur eftir mínútu.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Sambandið hikstaði. Viltu segja þetta aftur?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Sambandið slitnaði. Hringdu aftur til að tala áfram.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Slökkt er á aðgangi að hljóðnema. Kveiktu á honum í Kerfisstillingar › Persónuvernd og öryggi › Hljóðnemi og hringdu svo aftur.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Ekki tókst að ræsa hljóðnemann. Athugaðu hvort hljóðnemi sé tengdur og hringdu svo aftur.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Þagga hljóðnemann í símtali</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Komið í körfuna þína</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Komið í körfuna þína: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Ekki tókst að bæta henni við. Prófaðu á vörusíðunni.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Fer með þig þangað…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Opna: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sjálfgefið í kerfinu</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ekki tengt</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Yfirhafnir</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Toppar</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Buxur og pils</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Kjólar</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Skór</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Smáhlutir</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Milt</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Sólríkt</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Hálfskýjað</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Alskýjað</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Þoka</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Súld</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Rigning</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Snjókoma</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Skúrir</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Þrumuveður</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Þessi skrá er ekki lengur til.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Ekki tókst að lesa þessa skrá.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Þessi skrá er tóm.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Þessi skrá er stærri en 10 MB. Veldu minni skrá.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Aðeins er hægt að senda myndir og PDF-skrár.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Þessi skilaboð bárust hugsanlega ekki.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Faldar</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Á leiðinni</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Afhentar</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Skrifa til þjónustuvers</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Samtal við þjónustuver</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
</context>
</TS>
