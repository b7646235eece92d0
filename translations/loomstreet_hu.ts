<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Itt jársz</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Megnyitás teljes oldalon</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Küldés…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Kevesebb mutatása</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Összes mutatása</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter: küldés, Shift+Enter: új sor</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Küldés</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Próbáld újra</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 eltávolítása</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Korábbi</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Vissza az évhez</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Későbbi</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Kibontva</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Összecsukva</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Ugrás a legújabbhoz</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln új üzenet</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Úgy tűnik, nincs internetkapcsolat. Ellenőrizd, és próbáld újra.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Jelszó elrejtése</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Jelszó megjelenítése</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, korábban %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Elfogyott</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Folyamatban</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Levétel a kívánságlistáról</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Mentés a kívánságlistára</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Előző</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Következő</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, elfogyott</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, neked ajánlott</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Értékelés: %L1 / 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Értékelés: %L1 / 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Kevesebb</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Több</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Visszavonás</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>A fiókod</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Kijelentkezés</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Emlékszünk a gardróbodra</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Itt fiók nélkül is mindent megnézhetsz és megvehetsz. Fiókkal viszont a bolt azt is tudja, hol járnak a csomagjaid, és mire vársz.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Bejelentkezés</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Fiók létrehozása</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Rendelések egy helyen</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Minden csomag útja, és visszaküldés blokkvadászat nélkül</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Szólunk, amikor számít</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Újra van a méretedben, vagy csökkent az ára</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Tagság és kuponok</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Pontok, szintek és amit nyújtanak</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Pénztár, amely ismer téged</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>A címed már ott vár</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Ügyfélszolgálat</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Rendelések, visszaküldés és méretek</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Rendelések</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Úton lévők és korábbiak</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Csomagkövetés</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>A csomag vagy a rendelés száma alapján</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Visszaküldések</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Ha valamit visszaküldenél</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Neked</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Kívánságlista</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Még nincs mentett darab</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln darab</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Figyelések</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Újra kapható és olcsóbb darabok</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Tagság</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>A szinted és a pontjaid</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kuponok</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>A pénztárnál beválthatod őket</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Fiók</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Fiók nélkül</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Név, születésnap és hírlevelek</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Adatvédelem</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Amit a bolt megtud rólad</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Ezen a számítógépen tárolva</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Fiók törlése…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>A kulcstartó nem válaszol</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Ez őrzi biztonságban a bejelentkezésedet, nélküle senki sem tud belépni. Oldd fel, majd próbáld újra.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Újra kapható</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Árcsökkenés</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Ismét készleten</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Most olcsóbb</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 volt, amikor kérted</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Figyelés leállítása</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln figyelés</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>E-mailt küldünk ide: %1, ha egy darab újra kapható, vagy csökken az ára.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Még nincs figyelés</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Ha egy darab elfogyott a méretedben, válaszd a „Szólj, ha újra kapható” gombot. Minden másnál a „Szólj, ha olcsóbb lesz” gombot.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Újdonságok</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Jelentkezz be a figyeléseidhez</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Szólunk, ha egy darab újra van a méretedben, vagy olcsóbb lett.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Erről nem küldünk e-mailt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln darab</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Tervezők</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln tervező</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Tervező keresése</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Betűk</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>További tervezők</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Tervezők: %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Nincs ilyen tervező: „%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Ellenőrizd az írásmódot, vagy nézd végig az összeset.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Összes tervező</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Itt még nincs semmi</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Minden héten érkeznek új darabok.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Felfedezés</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln értékelés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln eladva</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Előrendelés</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Legtöbben ezt választják: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Mihez vegyem fel?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Összehasonlítás</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Mentett vagy megnézett darabokkal</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>INGYENES szállítás világszerte</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Legalább %1 értékű kosárnál</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Jó tudni</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Az ár tartalmazza az importvámot</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>A szállítási díj a pénztárnál derül ki</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>E-mailben szólunk, ha újra kapható</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Szólj, ha újra kapható</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Kosárba téve</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Kosárba</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Nyomd meg a lemondáshoz</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Pénztár megnyitása…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Megveszem most</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Hívás: %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Megnyitás ablakban</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Hívás befejezése</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Hívás megjelenítése</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>%1 hívása</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Újrahívás</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>A mikrofon be van kapcsolva</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>A mikrofon némítva van</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Hívás…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Gondolkodik</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Beszél</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Némítva</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Figyel rád</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>A hívás véget ért</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Némítás feloldása</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Némítás</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Kedvezménykód</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Beváltás</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>A kosarad nem tölthető be</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>A termékeid megvannak. Ellenőrizd a kapcsolatot, és próbáld újra.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>A kosarad üres</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Itt jelenik meg, amit a kosárba teszel.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Vásárlás folytatása</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Kikerült a kosárból: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>A korábbi kosarad lejárt. %Ln termék volt benne.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Visszatétel</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Mennyiség: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Eltávolítás a kosárból</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Elrejtés</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Kosár</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Kosár</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Megjelenítés oldalsó panelen</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Részösszeg</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Kedvezmény</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Végösszeg</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Importvám az árban · Szállítási díj a pénztárnál</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Pénztár</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Fejezd be a fizetést a pénztár ablakában. A kosarad változatlan marad.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nem kapható</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Kollekció</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln újdonság az elmúlt 30 napban</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Ez a kollekció nem érhető el</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Lehet, hogy új nevet kapott, vagy itt nem kapható: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Nincs a szűrőknek megfelelő termék</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Vegyél le egy szűrőt, hogy többet láss.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Tedd teljessé a szettet</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Ezekkel viseld</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Ezek is tetszettek</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Azoknak, akik ezt a darabot megnézték</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Ez is tetszhet neked</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Adj hozzá darabokat</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Darab hozzáadása</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>A kívánságlistádról és amit megnéztél</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Ments el vagy nézz meg darabokat, és add őket ide.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Összehasonlítás ezzel: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Méretek</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Anyagösszetétel</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Levétel az összehasonlításból</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Az országodban nem kapható.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>nincs megadva</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>%1 méretei</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Vissza az elsőhöz</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Amit mások viselnek</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Nézz körül</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Követett tervezők</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Hírek a tervezőidtől</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Nézd meg, mi az új</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Gardrób</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Mit vegyek fel ma?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Gardrób megnyitása</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Rendeléseid és figyeléseid</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>A tagságod</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Nézd meg, mit nyújt</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Hol van a csomagom?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Rendelés: %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Rendelés megtekintése</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Árcsökkenések</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>A darabjaid most olcsóbbak</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Őrizd meg, amit szeretsz</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln mentett darab</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Kívánságlista megtekintése</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Törlöd a fiókodat?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>A profilod, a figyeléseid, a tagságod és a rendeléseid listája végleg törlődik. Az úton lévő rendelések megérkeznek. Ez nem vonható vissza.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>A megerősítéshez írd be az e-mail-címedet</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Fiók törlése</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Kollekciók</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Szűrők</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Összes szűrő törlése</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Keresés: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Ilyen nevű nincs</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Kevesebb mutatása</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Összes mutatása (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Legalább</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Legfeljebb</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Darabok mutatása</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>%Ln darab mutatása</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Szűrők bezárása</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln kiválasztva, %L1 hasonlítható össze</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln kiválasztva</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Válassz 2–4 darabot</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Kijelölés</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Legújabb elöl</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Ár szerint növekvő</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Ár szerint csökkenő</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Mindet láttad (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Kollekció: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 megnyitása</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Válassz méretet</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Neked ajánlott: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>A kosaradban</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Lecserélés</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Kihagyás</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 / %Ln darab</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Ehelyett: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Most nincs hozzá hasonló.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira választása</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>A szetted</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Válassz méretet, cseréld le, ami kevésbé tetszik, hagyd ki, ami már megvan.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>hüvelyk</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>A testméreteid</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira ezekből számolja ki a méretedet. Bekerülnek a beszélgetésbe, és egy másolat kijelentkezésig ezen a számítógépen marad.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Mértékegység</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrikus</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Angolszász</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Magasság (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>láb</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Testsúly (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>font</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>Mellbőség (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Derékbőség (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Csípőbőség (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Hagyd üresen, ha nem tudod.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Kedvelt fazon</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Küldés Mirának</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Törlés erről a számítógépről</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Szett összeállítása hozzá</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Méretválasztás és kosárba</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Üzenet neki: %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Szett ehhez: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Darabjaim · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Szett a darabjaimból</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Időjárás</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Továbbiak</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Nézd meg a szettet: %Ln darab, mind a te méretedben</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Új téma</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Témák…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Frissítés</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Szett a darabjaimból…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Testméreteim…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Időjárás…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Megjelenítés az oldal mellett</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Javaslatok</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Küldés: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Beszélgetés: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Átnevezés</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>A téma neve</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Törlöd ezt: „%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Megtartás</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Témák</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Te</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Testméreteim megadása</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 először ezekből válogat, és csak oda tesz újat, ahol hiányzik valami.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Még nincs miből szettet összeállítani</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Itt jelennek meg a kosaradban és a kívánságlistádon lévő darabok.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln kiválasztva, több már nem lehet</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>A kosaradban</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>A kívánságlistádon</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Hol vagy? A szett az időhöz igazodik.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Szett az időjáráshoz</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Város</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Beállítás</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Jelenlegi helyem</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Mire öltözöl?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Adj meg egy alkalmat, egy kedvenc darabot vagy egy keretet, és %1 összeállítja a szettet.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Jelentkezz be, hogy lásd a rendeléseidről és figyeléseidről szóló híreket.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Megjelenítés</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Összes</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Rendszer</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Ügyfélszolgálat</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Értesítések</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Jelentkezz be az értesítéseidhez</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Nincs újdonság</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Itt szólunk az úton lévő rendelésekről, az újra kapható darabokról és az alacsonyabb árakról.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Itt lesz minden, ami a rendeléseidet és a követett darabokat érinti.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Olvasatlan</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Összes megjelölése olvasottként</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Értesítési beállítások</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Várható: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Rendelés</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Leadva: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Csomag</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Darabok</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Visszaküldés és visszatérítés</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Ez a rendelés nincs itt</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Az új rendelésed néhány perc múlva jelenik meg itt.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Lehet, hogy másik fiókhoz tartozik.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Jelentkezz be a rendelés megtekintéséhez</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Egy csomag a száma alapján fiók nélkül is követhető.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Mennyiség: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Elrejtve</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Rendelés megjelenítése újra</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Rendelés elrejtése</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Mely rendelések</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Úton</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Kézbesítve</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Minden rendelésed el van rejtve</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Semmi sincs úton</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Még nincs kézbesített rendelés</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Nincs visszaküldés</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Néhány közülük el van rejtve.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Rejtett rendelések mutatása</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Összes rendelés</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>A rendelésed úton van erre az oldalra</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Még nincs rendelés</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Itt jelenik meg, amit rendelsz, és hogy hol jár feléd.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Jelentkezz be a rendeléseidhez</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Hol járnak, mi van bennük, és hogyan küldhetsz vissza valamit.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Ezen a számítógépen elrejtve a rendeléseid közül.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Lépés: %L1 / %L2, %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Szállítási cím</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Visszaküldés indítása</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Csomag: %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Ezt a számot még senki sem ismeri</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Egy új csomag akár egy nap múlva jelenik meg a futárszolgálatnál.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Futárszolgálat oldalának megnyitása</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>A futárszolgálat még nem közölt róla semmit.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>A csomag útja</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Átmenetileg nem elérhető</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Ez a funkció most szünetel. Próbáld újra később.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Levétel a listáról</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Ez a darab nem elérhető</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Lehet, hogy végleg elfogyott, vagy itt nem kapható: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>E-mailben szólunk, ha olcsóbb lesz</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Szólj, ha olcsóbb lesz</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln darab olcsóbb, mint amikor láttad</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Még nincs mit figyelni</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Most nincs árcsökkenés</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Ments el vagy nézz meg egy darabot, és itt látod, ha olcsóbb lesz.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>A mentett és megnézett darabjaid ára nem változott, vagy más pénznemben láttad őket.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Utolsó esély</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Képek</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Kép: %L1 / %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, %L2. kép</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Összes</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Nem érdekel</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>%Ln nap után: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>A bolt válasza: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Értékelések</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>További értékelések</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Leírás</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Főbb jellemzők</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Részletek</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Kérdések és válaszok</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Születésnap</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Dátum választása</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>A cím, amellyel bejelentkezel</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Ország</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Mentés</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Módosítások elvetése</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Mentve</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>%1 óta velünk vagy</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Hírlevelek</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>E-mailben</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Új darabok és ajánlatok ide: %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>SMS-ben</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Ehhez add meg fent a telefonszámod</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Jelentkezz be a profilodhoz</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>A neved, a telefonszámod és amit küldhetünk neked.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Felfedezem</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Nézz körül egy kicsit, és itt találod, ami a megnézettekhez illik.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Nemrég megnézve</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Összes törlése</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Még nincsenek előzmények</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Itt gyűlnek a megnézett darabok, hogy visszatalálj hozzájuk.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Jelentkezz be, és e-mailben szólunk, amint újra kapható.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Az e-mail ide megy: %1. Nyomd meg újra, ha már nem kéred.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Az e-mail ide megy: %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>%L1. kép nagyítása</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln találat erre: „%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Mit keresel?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Nincs találat erre: „%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Ellenőrizd az írásmódot, próbálj tágabb szót, vagy nézd meg az újdonságokat.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Semmi sem felel meg ezeknek a szűrőknek</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Vegyél le egy-két szűrőt, és több találatot látsz erre: „%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Kijelentkezel?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>A kosarad és a kívánságlistád ezen a számítógépen marad. A rendeléseid és a tagságod újra elérhető lesz, ha visszajelentkezel.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Mérettáblázat</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Méretek mértékegysége</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Rendezés: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Eszközök</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Jelenleg nincsenek eszközök.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Csomag- vagy rendelésszám</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>A feladásról szóló e-mailben találod.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Nem ismerjük ezt a számot. Ellenőrizd, vagy próbáld újra holnap: egy új csomag akár egy nap múlva jelenik meg.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Követés</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Ez az oldal nem elérhető</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Lehet, hogy elköltözött, vagy másik verzióval érkezik.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Kattints egy darabon a szívre, és itt vár rád. Az árát is figyeljük.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>A fiókod: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Fiók keresése…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Senki sincs bejelentkezve</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>A rendelésekhez, a figyelésekhez és a tagsághoz fiók kell. A nézelődéshez és a vásárláshoz nem.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Megjelenés</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Színek</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>A rendszer szerint</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Követi az asztal világos vagy sötét megjelenését</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Világos</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sötét</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Az asztal ablakkerete</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Címsor a lapok fölött, mint a többi ablaknál</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Nézet</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Ugrás</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Feliratok</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Mondd el, mit keresel, vagy mire kell.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Hívás megszakítása</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Csevegés</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Folytatás csevegésben, hogy írni is tudj</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Hívás: %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>A hívás hossza: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Megjelenítés a csevegésben</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Kicsinyítés</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Bezárás és folytatás csevegésben</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Hívás befejezése és bezárás</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Csak a kép</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Nagyítás</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Hívás megjelenítése: %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Hívás: %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Kibontás teljes oldalra</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>A Rendelések között bármikor követheted.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Oldal újratöltése</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Biztonságos fizetés: Shopify  ·  A kosarad változatlan marad</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Az oldal egyik linkje kivezet a pénztárból, ide: %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Megnyitás böngészőben</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>A pénztár itt nem jeleníthető meg</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Folytatás böngészőben</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>A LOOMSTREET nincs beállítva</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Futtasd a scripts/sync-secrets.sh parancsot a projektmappában, majd fordítsd le újra.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Előzmények</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Ország és pénznem</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>A bolt nyelve</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Darabok megnyitása a lista mellett</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Széles ablakban a darab az eredeti oldal mellett nyílik meg</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Méretek mértékegysége</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centiméter és kilogramm</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Hüvelyk és font</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Névtelen oldal</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Vetítés szüneteltetése</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Vetítés indítása</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Szóköz</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Kicsinyítés</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Nagyítás</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Ez a kép nem tölthető be</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Ország és nyelv: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Ország és nyelv</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Nyelv keresése</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Ország vagy pénznem keresése</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Nyelvek</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Országok</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Nincs ilyen nyelv: „%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Nincs ilyen ország: „%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Megnyitás</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Az ablakban</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Sáv az ablak tetején, néhány másodpercig.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Az asztalon</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Ott, ahol az asztal az alkalmazások üzeneteit mutatja, akkor is, ha nincs nyitott ablak.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Hanggal</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Számláló az alkalmazás ikonján</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Mennyit nem olvastál még belőle.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Példa mutatása</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Miről szóljunk</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Ezen a számítógépen többé nem ajánljuk.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Oldalpanel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Megnyitás új lapon</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Oldalpanel bezárása</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Az oldalpanel szélessége</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Segíts a boltnak választani, mit mutasson</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>A neved nélkül közli vele, mely oldalakat és darabokat nézik meg, teszik kosárba és veszik meg, és mikor állt le váratlanul az alkalmazás. Kikapcsolva csak a legszükségesebbet küldi el.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Mindkét esetben</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>A legszükségesebb az, amit kérsz</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>A megnyitott oldalaknak, a kereséseidnek, a kosaradnak és a rendeléseidnek el kell jutniuk a bolthoz.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Amit megőrzöl, ezen a számítógépen marad</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>A kívánságlistád, amit megnéztél és amire kerestél, amíg nem törlöd.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>A bejelentkezésedet a kulcstartó őrzi</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Ahol nincs ilyen, ott egy fájl, amelyet csak te olvashatsz. 60 nap után és minden kijelentkezéskor megszűnik.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Képernyőkép mentve</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>A képernyőkép nem menthető</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Nézd meg, van-e hely a Képek mappában.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Keress, vagy illessz be egy linket</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Keresés képpel…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Hang</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Frissítések</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Szakaszok</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Folytatás ezzel: %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Bejelentkezés…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 megnyílik a böngésződben. Jelentkezz be ott, és itt is be leszel jelentkezve.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Másolva</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Cím másolása</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Ha a böngésző nem nyílt meg magától</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Itt nem történt semmi?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Illeszd be a linket, amelynél a böngésződ megállt</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Így kezdődik: „wrenfieldstore://”. Néhány böngésző a címsorban mutatja.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Bejelentkezés befejezése</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Hozd létre a fiókodat</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Jelentkezz be a fiókodba</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Bejelentkezési módok</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>E-mailes kód</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Kódot küldtünk ide: %1. Akár egy perc is lehet, mire megérkezik.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Előbb egy kódot küldünk e-mailben, hogy biztosan a tiéd legyen a cím.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>E-mailben küldünk egy kódot a bejelentkezéshez. Jelszó nem kell.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Ellenőrző kód</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Újraküldés %L1 mp múlva</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Újraküldés</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Kód újraküldése</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Jelszó (legalább 6 karakter)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Név (nem kötelező)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Elfelejtetted a jelszavad? Lépj be e-mailes kóddal</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Kérek kódot e-mailben</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>vagy folytasd ezzel</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Leállítás</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Kipróbálás</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Mikrofonpróba leállítása</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Mikrofon kipróbálása</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Hangerő</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Most a hívás használja.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Mondj valamit: a sáv követi a hangodat. Semmi sem hagyja el ezt a számítógépet.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Mutatja, milyen hangosan beszélsz. Semmi sem hagyja el ezt a számítógépet.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Hangszóró</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1: bárhonnan elnémítja a mikrofont, amíg a hívás tart.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>A hívás ablakában az M billentyű némítja a mikrofont.</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Keresés: „%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Legutóbbiak</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Megnézett és mentett</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Nincs ilyen javaslat. Az Enter az összes darab között keres.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>választás</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>bezárás</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>„%1” törlése a legutóbbi keresésekből</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Kép: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Böngészőben nyílik meg</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Írj üzenetet</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Kép vagy PDF csatolása</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Képek és PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Húzz ide egy képet vagy PDF-et</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Miben segíthetünk?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Kérdezz rendelésről, visszaküldésről vagy a méretedről. Képet is küldhetsz.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Hol van a rendelésem?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Szeretnék visszaküldeni valamit</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Melyik méretet válasszam?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Betöltés</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 bezárása</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Új lap jobbra</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Lap rögzítésének feloldása</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Lap rögzítése</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Lap áthelyezése új ablakba</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Bezárt lap újranyitása</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Lap bezárása</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Többi lap bezárása</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Oldalsáv kibontása</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Oldalsáv összecsukása</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Lapok</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Új lap</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Előre</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Levéve innen: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Frissítés</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Utolsó ellenőrzés: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Még nem volt ellenőrzés</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>A LOOMSTREET e példánya nem tudja frissíteni magát.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>A LOOMSTREET magától keresi az új verziókat.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>A LOOMSTREET egyelőre nem keres magától új verziót.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Az új verziók onnan jönnek, ahonnan az alkalmazást beszerezted. Itt is ellenőrizheted.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Induláskor és hatóránként. Amit talál, a háttérben letölti, és kilépéskor telepíti; ahol ez nem megy, ott szól.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>A bolt szünetelteti. Itt továbbra is ellenőrizheted.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Frissítések keresése…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verzió: %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Újdonságok</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Verzió kihagyása</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Kis méret</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Előző méret</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Teljes méret</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Ablak bezárása</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Biztonságos kapcsolat: %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>A kapcsolat nem biztonságos</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>A fiókodat töröltük.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>A fiókod törlése előtt megszűnt a bejelentkezésed. A törléshez jelentkezz be újra.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Szállítás</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Ingyenes</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Adók</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln csomag</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Visszaigazolva</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Becsomagolva</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Törölve</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Folyamatban</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Futárra vár</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Kiszállítás alatt</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Kézbesítési probléma</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Visszaküldés kérve</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Visszaküldés jóváhagyva</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Visszatérítve</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Visszaküldés elutasítva</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 és még %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Legfeljebb %Ln karaktert írj.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Adj meg egy telefonszámot, például: %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Adj meg egy dátumot, például: %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Múltbeli dátumot adj meg.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Valamelyik adatot nem tudtuk elfogadni. Ellenőrizd, és próbáld újra.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Adj meg egy érvényes e-mail-címet.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>A kód hibás vagy lejárt. Kérj újat.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Túl sok próbálkozás. Várj egy percet, és próbáld újra.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Ez az e-mail-cím és jelszó nem illik össze. Próbáld újra, vagy lépj be e-mailes kóddal.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Ez a bejelentkezési mód még nem elérhető.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Ehhez a fiókhoz nincs használható e-mail-cím. Próbálj más módot.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>A bejelentkezés megszakadt.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>A bejelentkezés nem sikerült. Próbáld újra.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Írd be a kód hat számjegyét.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Válassz legalább 6 karakteres jelszót.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Írd be a jelszavad. Legalább 6 karakter.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Nem ezzel a linkkel ért véget a bejelentkezésed. A jó link így kezdődik: „wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREET Súgóközpont</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Szerződési feltételek</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Új ablak</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Lap rögzítése vagy feloldása</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Lap mozgatása hátra</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Lap mozgatása előre</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Oldalpanel darabjának megnyitása teljes oldalon</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Oldalpanel darabjának megnyitása új lapon</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Képernyőkép készítése</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Teljes képernyő</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Ugrás a szakasz kezdőlapjára</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Következő lap</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Előző lap</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Kiemelt</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Legújabb</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Ár szerint növekvő</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Ár szerint csökkenő</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Legkelendőbb</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Női</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Férfi</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luxus</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Táskák</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Kiegészítők</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Legalább %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Legfeljebb %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Nem visszaküldhető</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Új</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Már csak egy maradt</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Már csak %Ln maradt</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Legjobb találat</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Ez a darab nem küldhető vissza</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Rendelés előtt ellenőrizd a méretet és a színt</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Neked készül</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Csak akkor küldhető vissza, ha hibásan érkezik</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Rendelésre készül, ezért számolj több idővel</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>30 napon belül, viseletlenül, minden tartozékával</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Őrizd meg a dobozt, a porzsákot és a papírokat</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>30 napon belül, tiszta talppal, a dobozában</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Előbb otthon próbáld fel</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>30 napon belül, viseletlenül, címkével</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Előbb válassz: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln termék a kosaradban</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>A kódot nem tudtuk beváltani. Próbáld újra.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>„%1” nem érvényes a kosaradban lévő termékekre.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Tiéd az INGYENES szállítás világszerte</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Még %1, és INGYENES a szállítás világszerte</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Rendelés leadva. Néhány perc múlva megjelenik a Rendelések között.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Rendelés leadva: %1. Néhány perc múlva megjelenik a Rendelések között.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln darab  ·  a visszaigazolást elküldtük e-mailben</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Az oldal túl sokáig töltődött.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Az oldal kivezet a pénztárból.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Az oldal leállt.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>A pénztár nem indult el. Próbáld újra.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Most ennyivel olcsóbb: %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>munkába</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>randira</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>buliba</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>esküvőre</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>nyaralásra</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>utazáshoz</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>hétköznapra</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>hétvégére</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>iskolába</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>állásinterjúra</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>diplomaosztóra</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>fesztiválra</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>strandra</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>esti programra</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>brunchra</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>edzéshez</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>ünnepi alkalomra</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Új érkezések</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>A kedvenceid alapján</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>A hét újdonságai</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>A hét újdonsága</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Kézzel válogatva</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>A hét újdonsága · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>A kedvenceid alapján</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Hozzád hasonlók kedvence</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>A böngészésed alapján</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Most felkapott</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Illik a keresésedhez: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Kedvenced: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Ideális %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Stílus: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>édes</translation>
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
        <translation>elegáns</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalista</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantikus</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>streetwear</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>gótikus</translation>
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
        <translation>franciás</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>vagány</translation>
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
        <translation>laza</translation>
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
        <translation>fesztivál</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>klasszikus</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportos</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>sikkes</translation>
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
        <translation>koreai</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japán</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>új kínai</translation>
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
        <translation>csendes luxus</translation>
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
        <translation>szexi</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>cuki</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>menő</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>nőies</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgün</translation>
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
        <translation>alkalmi</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>glamour</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>avantgárd</translation>
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
        <translation>Kezdőlap</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Akció</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Üzenetek</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Túl sok próbálkozás. Várj egy kicsit, és próbáld újra.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Lejárt a munkameneted. Jelentkezz be újra.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Add meg az e-mail-címedet.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Néhány adat nem tűnik helyesnek. Ellenőrizd, és próbáld újra.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>A LOOMSTREET most hibába ütközött. Próbáld újra kicsit később.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Ez nem sikerült. Próbáld újra.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Váratlan válasz érkezett. Próbáld újra.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>A LOOMSTREET nem érhető el. Próbáld újra.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Az alkalmazásból hiányoznak a beállítások.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Időtúllépés történt. Próbáld újra.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Még %Ln értesítés vár az üzeneteid között.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Rendszerüzenetek</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>A fiók és a szolgáltatás hírei</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Rendelések hírei</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Visszaigazolva, feladva, kézbesítve</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Visszatérítés és visszaküldés</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Kiutalt visszatérítések és a visszaküldések hírei</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Az ügyfélszolgálat válaszai</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Ha az ügyfélszolgálat válaszol neked</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Újra kaphatók a darabok, amelyekre vártál</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Olcsóbb lett egy mentett vagy megnézett darab</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Vessa-aktivitás</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Kedvelések, hozzászólások, új követők és üzenetek</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Szintváltások, pontok és új kuponok</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Promóciók és események</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Akciók, új kollekciók és bolti események</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Mellékletet küldött</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Rendelés leadva</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>A rendelésedet visszaigazoltuk. Néhány perc múlva megjelenik a Rendelések között.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Rendelés visszaigazolva: %1. Néhány perc múlva megjelenik a Rendelések között.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>A LOOMSTREET nem tudta frissíteni magát</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Az új verzió lemezképből való telepítéséhez kattints az ablak tetején a Frissítés gombra.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Értesítés előnézete</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Itt jelennek meg a rendelések új hírei és az ügyfélszolgálat válaszai.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Gardrób</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Mindened egy helyen</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Outfitstúdió</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Állíts össze darabokat, és nézd meg őket együtt</translation>
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
        <translation>Az outfitek, amelyeket megőriztél</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Outfitötletek</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Új ötletek a gardróbod darabjaira</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Mérettanácsadás</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>A testméreteid és a hozzájuk illő méret</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Keresés képpel</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Találj rá egy darabra a képe alapján</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Összehasonlítás</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Akár négy darab egymás mellett</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Frissítések keresése…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Minden naprakész</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 letöltése</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>A letöltés ellenőrzése…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 telepítése</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Nem sikerült frissítést keresni</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Nem sikerült letölteni a frissítést</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Telepíthető</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Frissítés telepítése</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 telepíthető</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>A LOOMSTREET %1 a legújabb verzió.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>A LOOMSTREET bezárul, és az új verzió lép a helyébe.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Letöltve. A befejezéshez indítsd újra az alkalmazást, különben a következő kilépéskor települ.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>A most megnyílt ablakban húzd a LOOMSTREET ikonját az Alkalmazások mappára, és válaszd a Csere gombot. Utána nyisd meg újra a LOOMSTREET alkalmazást.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>A LOOMSTREET nem tudta lecserélni magát ezen a számítógépen. Telepítsd az új verziót a lemezképből. Csak néhány másodperc.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>A nálad lévő verziót már nem támogatjuk.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>A frissítés letöltve. A befejezéshez indítsd újra a LOOMSTREET alkalmazást, különben a következő kilépéskor települ.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Nem sikerült frissítést keresni. Ellenőrizd a kapcsolatot, és próbáld újra.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>A letöltés nem sikerült (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>A letöltés hiányos, vagy útközben megváltozott. Próbáld újra.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>A letöltött fájl nem olvasható.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>A letöltést nem a LOOMSTREET írta alá, ezért nem nyitottuk meg.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Letöltés és telepítés</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Újraindítás a frissítéshez</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Lemezkép megnyitása</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Úgy tűnik, nincs internetkapcsolat.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira túl sokáig nem válaszolt.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Túl gyorsan küldöd az üzeneteket. Várj egy kicsit.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Ezt az üzenetet így nem lehetett elküldeni.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>A LOOMSTREET most hibába ütközött.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>A LOOMSTREET nem érhető el.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Válassz méretet: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Időközben elfogyott, nem került a kosárba: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>A pénztár nem indult el. Ellenőrizd a kapcsolatot, és próbáld újra.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Ez a magasság vagy testsúly nem tűnik helyesnek. Ellenőrizd a számokat és a mértékegységet.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Az egyik testméret nem tűnik helyesnek. Ellenőrizd a számot, vagy hagyd üresen.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Bő</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Testhezálló</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Normál</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Mihez vegyem fel ezt: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Ezt az üzenetet nem igazolta vissza a rendszer. Próbáld újra.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>A beszélgetés naprakész</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira válaszol</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira válaszol. Ezeket mindjárt elküldheted.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>A témák ezen a számítógépen vannak mentve. A közös beszélgetésekre Mira emlékszik.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Segíts találni valamit</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Szett a gardróbomból</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Mit vegyek fel ma este</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>A LOOMSTREET nem láthatja, hol vagy. Írd be inkább a városodat.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Nem találtuk a helyzetedet. Írd be inkább a városodat.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Ezt a várost nem ismerjük. Próbálj egy nagyobbat a közelben.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira most nem tudja felvenni. Próbáld újra kicsit később.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira épp másik hívásban van. Próbáld újra egy perc múlva.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Megakadt a vonal. Megismétled?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Megszakadt a vonal. Hívd újra, és beszélgessetek tovább.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>A mikrofonhoz nincs hozzáférés. Kapcsold be itt: Rendszerbeállítások › Adatvédelem és biztonság › Mikrofon, majd hívj újra.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>A mikrofon nem indult el. Nézd meg, csatlakozik-e, majd hívj újra.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Mikrofon némítása hívás közben</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>A kosaradba tettük</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>A kosaradba került: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Nem sikerült a kosárba tenni. Próbáld a termék oldaláról.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Máris odaviszlek…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 megnyitása</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Rendszer alapértelmezése</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nincs csatlakoztatva</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Kabátok</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Felsők</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Nadrágok, szoknyák</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Ruhák</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Cipők</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Apróságok</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Enyhe</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Napos</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Részben felhős</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Borult</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Ködös</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Szitáló eső</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Esős</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Havas</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Záporos</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Zivataros</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Ez a fájl már nincs meg.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Ez a fájl nem olvasható.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Ez a fájl üres.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Ez a fájl nagyobb 10 MB-nál. Válassz kisebbet.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Csak kép és PDF-fájl küldhető.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Lehet, hogy ez az üzenet nem érkezett meg.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Elrejtve</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Úton</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Kézbesítve</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Üzenet az ügyfélszolgálatnak</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Beszélgetés az ügyfélszolgálattal</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1”</translation>
    </message>
</context>
</TS>
