<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Tu sa nachádzate</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Otvoriť celú stránku</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Odosiela sa…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Zobraziť menej</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Zobraziť všetko</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter odošle, Shift+Enter začne nový riadok</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Odoslať</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Skúsiť znova</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odstrániť</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Odstrániť: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Staršie</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Späť na výber roka</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Neskoršie</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Rozbalené</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Zbalené</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Prejsť na najnovšie</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln nová správa</numerusform>
            <numerusform>%Ln nové správy</numerusform>
            <numerusform>%Ln nových správ</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Zdá sa, že ste offline. Skontrolujte pripojenie a skúste to znova.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavrieť</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Skryť heslo</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Zobraziť heslo</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, predtým %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Vypredané</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Pracuje sa</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Odstrániť zo zoznamu želaní</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Uložiť do zoznamu želaní</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hľadať</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Predchádzajúce</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Ďalšie</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, vypredané</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, odporúčame vám</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Hodnotenie %L1 z 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Hodnotenie %L1 z 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Menej</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Viac</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Vrátiť späť</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Váš účet</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Odhlásiť sa</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Váš šatník, na ktorý nezabudneme</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Všetko si tu môžete pozrieť a kúpiť aj bez účtu. S účtom však obchod vie, kde sú vaše zásielky a na čo čakáte.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Prihlásiť sa</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Vytvoriť účet</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Objednávky na jednom mieste</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Kde je každá zásielka, a vrátenie bez hľadania účtenky</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Správa vtedy, keď na nej záleží</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Vaša veľkosť je späť alebo cena klesla</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Členstvo a kupóny</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Body, úrovne a výhody, ktoré prinášajú</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Pokladňa, ktorá vás pozná</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Vaša adresa je už vyplnená</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Zákaznícky servis</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Objednávky, vrátenia a veľkosti</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Objednávky</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Na ceste aj predošlé nákupy</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Sledovať zásielku</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Podľa čísla zásielky alebo objednávky</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Vrátenia</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Poslať niečo späť</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Pre vás</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Zoznam želaní</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Zatiaľ nič uložené</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln kúsok</numerusform>
            <numerusform>%Ln kúsky</numerusform>
            <numerusform>%Ln kúskov</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Upozornenia</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Opäť na sklade a nižšie ceny</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Členstvo</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Vaša úroveň a body</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kupóny</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Môžete ich použiť v pokladni</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Bez účtu</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Meno, narodeniny a newslettre</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Súkromie</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Čo sa obchod o vás dozvie</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Uložené v tomto počítači</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Odstrániť účet…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Vaša kľúčenka neodpovedá</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Chráni vaše prihlásenie a bez nej sa nikto neprihlási. Odomknite ju a skúste to znova.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Opäť na sklade</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Zníženie ceny</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Znova na sklade</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Teraz lacnejšie</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 pri zapnutí upozornenia</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Zrušiť toto upozornenie</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln upozornenie</numerusform>
            <numerusform>%Ln upozornenia</numerusform>
            <numerusform>%Ln upozornení</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Napíšeme vám na %1, keď bude kúsok opäť na sklade alebo jeho cena klesne.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Zatiaľ žiadne upozornenia</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Pri kúsku, ktorý je vo vašej veľkosti vypredaný, stlačte „Upozorniť, keď bude späť“. Pri ostatných „Upozorniť na zníženie ceny“.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Novinky</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Prihláste sa a uvidíte svoje upozornenia</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Dáme vám vedieť, keď bude kúsok opäť vo vašej veľkosti alebo bude stáť menej.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Už vám o ňom nenapíšeme.</numerusform>
            <numerusform>Už vám o nich nenapíšeme.</numerusform>
            <numerusform>Už vám o nich nenapíšeme.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln kúsok</numerusform>
            <numerusform>%1, %Ln kúsky</numerusform>
            <numerusform>%1, %Ln kúskov</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Dizajnéri</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln dizajnér</numerusform>
            <numerusform>%Ln dizajnéri</numerusform>
            <numerusform>%Ln dizajnérov</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Nájsť dizajnéra</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazať</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Písmená</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Ďalší dizajnéri</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Dizajnéri na %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Žiadny dizajnér nezodpovedá výrazu „%1“</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Skontrolujte pravopis alebo si pozrite všetkých.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Zobraziť všetkých dizajnérov</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Zatiaľ tu nič nie je</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Nové kúsky pribúdajú každý týždeň.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Objavujte</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln recenzia</numerusform>
            <numerusform>%Ln recenzie</numerusform>
            <numerusform>%Ln recenzií</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln predaný</numerusform>
            <numerusform>%Ln predané</numerusform>
            <numerusform>%Ln predaných</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Predobjednávka</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Najčastejšia voľba: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>S čím to nosiť?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porovnať</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>S kúskami, ktoré ste si uložili alebo pozreli</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>Doprava ZADARMO do celého sveta</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Pri košíku od %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Dobré vedieť</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Vrátane dovozného cla</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Doprava sa vypočíta v pokladni</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Napíšeme vám, keď bude späť</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Upozorniť, keď bude späť</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Pridané</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Pridať do košíka</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Stlačením zrušíte</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Otvára sa pokladňa…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Kúpiť teraz</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Hovor: %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Otvoriť v okne</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ukončiť</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Ukončiť hovor</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Zobraziť hovor</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Zavolať: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Zavolať znova</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofón je zapnutý</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofón je stlmený</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Vytáča sa…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Premýšľa</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Hovorí</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Stlmené</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Počúva</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Hovor sa skončil</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Zrušiť stlmenie</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stlmiť</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Zľavový kód</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použiť</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Košík sa nepodarilo načítať</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Vaše položky sú v bezpečí. Skontrolujte pripojenie a skúste to znova.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Váš košík je prázdny</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Tu sa zobrazí, čo si pridáte.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Pokračovať v nákupe</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Odobrané z košíka: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Platnosť vášho predchádzajúceho košíka vypršala. Bola v ňom %Ln položka.</numerusform>
            <numerusform>Platnosť vášho predchádzajúceho košíka vypršala. Boli v ňom %Ln položky.</numerusform>
            <numerusform>Platnosť vášho predchádzajúceho košíka vypršala. Bolo v ňom %Ln položiek.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Dať späť</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Množstvo: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Odstrániť z košíka</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Zavrieť</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Košík</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Košík</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Zobraziť ako vysúvací panel</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Medzisúčet</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Zľava</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Spolu</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Vrátane dovozného cla · Doprava sa vypočíta v pokladni</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Pokladňa</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Platbu dokončite v okne pokladne. Košík zostane tak, ako je.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nedostupné</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Kolekcia</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln novinka za posledných 30 dní</numerusform>
            <numerusform>%Ln novinky za posledných 30 dní</numerusform>
            <numerusform>%Ln noviniek za posledných 30 dní</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Táto kolekcia nie je dostupná</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Možno sa premenovala alebo sa v tejto krajine nepredáva (%1)</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Týmto filtrom nič nezodpovedá</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Odstráňte niektorý filter a uvidíte viac.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Dolaďte celý look</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Kúsky, s ktorými ladí</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Páči sa aj</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Tým, ktorí si pozreli tento kúsok</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Mohlo by sa vám páčiť</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Pridajte kúsky na porovnanie</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Pridať kúsok</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Zo zoznamu želaní a z toho, čo ste si pozreli</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Uložte si kúsky alebo si ich pozrite a pridajte ich sem.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Porovnať s: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Veľkosti</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Zloženie</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Odstrániť z porovnania</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Vo vašej krajine nedostupné.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>neuvedené</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Veľkosti: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Späť na začiatok</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Čo nosia ostatní</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Poobzerať sa</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Sledované</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Novinky od vašich dizajnérov</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Pozrieť novinky</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Šatník</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Čo si dnes obliecť?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Otvoriť šatník</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Vaše objednávky a upozornenia</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Vaše členstvo</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Pozrieť výhody</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Kde je moja zásielka?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Objednávka %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Pozrieť objednávku</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Zníženia cien</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Vaše kúsky teraz stoja menej</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Uložte si, čo milujete</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln uložený kúsok</numerusform>
            <numerusform>%Ln uložené kúsky</numerusform>
            <numerusform>%Ln uložených kúskov</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Pozrieť zoznam želaní</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Odstrániť váš účet?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Váš profil, upozornenia, členstvo a zoznam objednávok sa natrvalo odstránia. Objednávky na ceste k vám ešte dorazia. Tento krok sa nedá vrátiť.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Na potvrdenie zadajte svoju e-mailovú adresu</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Odstrániť účet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Kolekcie</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Zrušiť všetky filtre</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Hľadať: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Nič s týmto názvom</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Zobraziť menej</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Zobraziť %Ln</numerusform>
            <numerusform>Zobraziť všetky %Ln</numerusform>
            <numerusform>Zobraziť všetkých %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Zobraziť kúsky</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Zobraziť %Ln kúsok</numerusform>
            <numerusform>Zobraziť %Ln kúsky</numerusform>
            <numerusform>Zobraziť %Ln kúskov</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Zavrieť filtre</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>Vybrané: %Ln, porovnať možno %L1</numerusform>
            <numerusform>Vybrané: %Ln, porovnať možno %L1</numerusform>
            <numerusform>Vybrané: %Ln, porovnať možno %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>Vybrané: %Ln</numerusform>
            <numerusform>Vybrané: %Ln</numerusform>
            <numerusform>Vybrané: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Vyberte dva až štyri kúsky</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrať</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Od najnovších</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Cena: od najnižšej</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Cena: od najvyššej</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>To je všetko: %Ln kúsok</numerusform>
            <numerusform>To je všetko: %Ln kúsky</numerusform>
            <numerusform>To je všetko: %Ln kúskov</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Kolekcia: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Otvoriť: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Vyberte veľkosť</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Veľkosť</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Odporúčame vám: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Vo vašom košíku</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Vymeniť</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Vynechať</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 z %Ln kúska</numerusform>
            <numerusform>%L1 z %Ln kúskov</numerusform>
            <numerusform>%L1 z %Ln kúskov</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Namiesto: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Momentálne nič podobné nemáme.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Výber od Miry</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Váš look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Vyberte veľkosti, vymeňte, čo sa vám pozdáva menej, a vynechajte, čo už máte.</translation>
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
        <translation>Vaše miery</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira podľa nich určí vaše veľkosti. Pridajú sa do vašej konverzácie a kópia zostane v tomto počítači, kým sa neodhlásite.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Jednotky</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrické</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperiálne</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Výška (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>ft</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Hmotnosť (%1)</translation>
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
        <translation>Hrudník (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Pás (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Boky (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Ak ich nepoznáte, nechajte polia prázdne.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Obľúbený strih</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Poslať Mire</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Odstrániť z tohto počítača</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Zostaviť k tomu look</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Vybrať veľkosť a pridať do košíka</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Správa pre: %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look k: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Moje kúsky · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Zladiť s mojimi kúskami</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Počasie</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Viac</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Pozrieť look: %Ln kúsok vo vašej veľkosti</numerusform>
            <numerusform>Pozrieť look: %Ln kúsky, každý vo vašej veľkosti</numerusform>
            <numerusform>Pozrieť look: %Ln kúskov, každý vo vašej veľkosti</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nová téma</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Témy…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Obnoviť</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Zladiť s mojimi kúskami…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Moje miery…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Počasie…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Zobraziť vedľa stránky</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Návrhy</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Odoslať: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Konverzácia: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Premenovať</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstrániť</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Názov témy</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Odstrániť „%1“?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Ponechať</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Témy</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Vy</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Zadať moje miery</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 použije najprv tieto kúsky a niečo nové pridá, len keď niečo chýba.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Zatiaľ niet čo zladiť</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Tu sa zobrazia kúsky z vášho košíka a zoznamu želaní.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln vybraný, viac sa nedá</numerusform>
            <numerusform>%Ln vybrané, viac sa nedá</numerusform>
            <numerusform>%Ln vybraných, viac sa nedá</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Vo vašom košíku</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Vo vašom zozname želaní</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Kde ste? Look sa prispôsobí dňu.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Chcem look podľa počasia</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Mesto</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastaviť</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Použiť moju polohu</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Na akú príležitosť sa obliekate?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Prezraďte príležitosť, obľúbený kúsok alebo rozpočet a %1 vám zostaví look.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Prihláste sa a uvidíte, čo je nové s vašimi objednávkami a upozorneniami.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zobraziť</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Všetky</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systém</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Zákaznícky servis</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Oznámenia</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Prihláste sa a uvidíte svoje oznámenia</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Nič nové</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Tu sa dozviete o objednávkach na ceste, o kúskoch opäť na sklade a o nižších cenách.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Tu nájdete všetko o svojich objednávkach a kúskoch, ktoré sledujete.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Neprečítané</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Označiť všetko ako prečítané</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Nastavenia oznámení</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Očakávané doručenie: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Objednávka</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Objednané %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Zásielka</numerusform>
            <numerusform>Zásielky</numerusform>
            <numerusform>Zásielky</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Kúsky</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Vrátenia a peniaze späť</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Táto objednávka tu nie je</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Nová objednávka sa tu zobrazí o pár minút.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Možno patrí k inému účtu.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Prihláste sa a uvidíte túto objednávku</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Zásielku môžete sledovať podľa čísla aj bez účtu.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Množstvo: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skrytá</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Znova zobraziť objednávku</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Skryť objednávku</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Ktoré objednávky</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Na ceste</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Doručené</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Všetky vaše objednávky sú skryté</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Nič nie je na ceste</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Zatiaľ nič nedoručené</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Žiadne vrátenia</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Niektoré z nich sú skryté.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Zobraziť skryté objednávky</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Všetky objednávky</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Vaša objednávka sa tu čoskoro objaví</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Zatiaľ žiadne objednávky</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Tu uvidíte, čo ste si objednali a kde to práve je.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Prihláste sa a uvidíte svoje objednávky</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Kde sú, čo obsahujú a ako niečo poslať späť.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>V tomto počítači skryté medzi objednávkami.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Krok %L1 z %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Súhrn</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Adresa doručenia</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Začať vrátenie</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Zásielka %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Toto číslo zatiaľ nikto nepozná</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Nová zásielka sa u dopravcu môže objaviť až na druhý deň.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Otvoriť stránku dopravcu</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Dopravca o nej zatiaľ nič neoznámil.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Priebeh doručenia</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Dočasne nedostupné</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Táto funkcia je teraz pozastavená. Skúste to neskôr.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Odstrániť zo zoznamu</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Tento kúsok nie je dostupný</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Možno je definitívne vypredaný alebo sa v tejto krajine nepredáva (%1).</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Napíšeme vám, keď bude stáť menej</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Upozorniť na zníženie ceny</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln kúsok stojí menej, ako keď ste ho videli</numerusform>
            <numerusform>%Ln kúsky stoja menej, ako keď ste ich videli</numerusform>
            <numerusform>%Ln kúskov stojí menej, ako keď ste ich videli</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Zatiaľ niet čo sledovať</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Momentálne žiadne zníženia cien</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Uložte si kúsok alebo si ho pozrite a tu uvidíte, keď bude stáť menej.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Uložené a prezerané kúsky stoja toľko ako vtedy, keď ste ich videli, alebo ste ich videli v inej mene.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Finálny výpredaj</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Obrázky</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Obrázok %L1 z %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, obrázok %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Zobraziť všetko</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Nezaujíma ma</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Po %Ln dni: %1</numerusform>
            <numerusform>Po %Ln dňoch: %1</numerusform>
            <numerusform>Po %Ln dňoch: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Odpoveď obchodu: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Recenzie</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Ďalšie recenzie</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Prednosti</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaily</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Otázky a odpovede</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Meno</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefón</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Narodeniny</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Vyberte dátum</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Adresa, ktorou sa prihlasujete</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Krajina</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Uložiť</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Zahodiť zmeny</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Uložené</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>S nami od %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Newslettre</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>E-mailom</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Nové kúsky a ponuky, na %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>SMS správou</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Vyžaduje telefónne číslo vyššie</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Prihláste sa a uvidíte svoj profil</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Vaše meno, telefónne číslo a čo vám môžeme posielať.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Objaviť</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Trochu sa poobzerajte a nájdete tu, čo k tomu ladí.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Naposledy prezerané</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Vymazať všetko</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>História prezerania je zatiaľ prázdna</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Tu sa zhromažďujú kúsky, ktoré si pozriete, aby ste sa k nim ľahko vrátili.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Prihláste sa a napíšeme vám, keď bude späť.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>E-mail pošleme na %1. Ak ho už nechcete, stlačte znova.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>E-mail pošleme na %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Zväčšiť obrázok %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln výsledok pre „%1“</numerusform>
            <numerusform>%Ln výsledky pre „%1“</numerusform>
            <numerusform>%Ln výsledkov pre „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Čo hľadáte?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Žiadne výsledky pre „%1“</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Skontrolujte pravopis, skúste všeobecnejšie slovo alebo si pozrite Novinky.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Týmto filtrom nič nezodpovedá</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Odstráňte jeden či dva filtre a uvidíte viac pre „%1“</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Odhlásiť sa?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Košík a zoznam želaní zostanú v tomto počítači. Objednávky a členstvo budú opäť dostupné po prihlásení.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tabuľka veľkostí</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Jednotky veľkostí</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Zoradiť: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Nástroje</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Momentálne tu nie sú žiadne nástroje.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Číslo zásielky alebo objednávky</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Nájdete ho v e-maile o odoslaní.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Toto číslo nepoznáme. Skontrolujte ho alebo to skúste zajtra: nová zásielka sa môže objaviť až na druhý deň.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Sledovať</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Táto stránka nie je dostupná</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Možno sa presunula alebo príde s inou verziou.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Stlačte srdiečko pri kúsku a bude vás tu čakať. Postrážime aj jeho cenu.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Váš účet: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Hľadáme váš účet…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Nikto nie je prihlásený</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Objednávky, upozornenia a členstvo vyžadujú účet. Prezeranie a nakupovanie nie.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Vzhľad</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farby</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Podľa systému</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Prepína sa medzi svetlým a tmavým podľa systému</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Svetlý</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tmavý</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Systémový rám okna</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Záhlavie nad kartami, ako majú iné okná</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Súbor</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Zobraziť</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Prejsť</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomocník</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Čo zaznelo</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Povedzte, čo hľadáte alebo na akú príležitosť.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Zrušiť hovor</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Čet</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Pokračovať v čete aj písaním</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Hovor: %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Trvanie hovoru: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Zobraziť v čete</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Zmenšiť</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Zavrieť a pokračovať v čete</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Ukončiť hovor a zavrieť</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Len obraz</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Zväčšiť</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Zobraziť hovor: %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Hovor: %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Rozbaliť na celú stránku</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Kedykoľvek ju môžete sledovať v časti Objednávky.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Načítať stránku znova</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Bezpečná pokladňa na Shopify  ·  Košík zostane tak, ako je</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Odkaz na tejto stránke vedie mimo pokladne, na %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Otvoriť v prehliadači</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Pokladňu tu nemožno zobraziť</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Pokračovať v prehliadači</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET nie je nastavený</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Spustite scripts/sync-secrets.sh v priečinku projektu a zostavte ho znova.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončiť</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>História prezerania</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Všeobecné</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Krajina a mena</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Jazyk obchodu</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Otvárať kúsky vedľa prehľadu</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>V širokých oknách sa kúsok zobrazí vedľa miesta, kde ste ho našli</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Jednotky mier</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimetre a kilogramy</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Palce a libry</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Stránka bez názvu</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Pozastaviť prezentáciu</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Spustiť prezentáciu</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Medzerník</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Oddialiť</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Priblížiť</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Tento obrázok sa nepodarilo načítať</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Krajina a jazyk: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Krajina a jazyk</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Hľadať jazyky</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Hľadať krajiny a meny</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Jazyky</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Krajiny</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Žiadny jazyk nezodpovedá výrazu „%1“</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Žiadna krajina nezodpovedá výrazu „%1“</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otvoriť</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>V okne</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Pruh v hornej časti na niekoľko sekúnd.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Na ploche</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Tam, kde váš systém zobrazuje oznámenia aplikácií, aj keď nie je otvorené žiadne okno.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>So zvukom</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Počet na ikone aplikácie</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Koľko toho ešte nemáte prečítané.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Zobraziť ukážku</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>O čom upozorňovať</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>V tomto počítači sa už nebude odporúčať.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Bočný panel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Otvoriť na novej karte</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Zavrieť bočný panel</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Šírka bočného panela</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Pomôcť obchodu vybrať, čo zobraziť</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Obchod sa bez vášho mena dozvie, ktoré stránky sa otvárajú, ktoré kúsky sa prezerajú, vkladajú do košíka a kupujú a kedy sa aplikácia nečakane ukončila. Ak je to vypnuté, odosiela sa len to nevyhnutné.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>V každom prípade</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Nevyhnutné je to, o čo požiadate</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Stránky, ktoré otvoríte, vaše vyhľadávania, košík a objednávky sa k obchodu musia dostať.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Čo si uložíte, zostáva v tomto počítači</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Váš zoznam želaní, čo ste si pozreli a čo ste hľadali, kým to nevymažete.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Vaše prihlásenie je uložené v kľúčenke</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Kde kľúčenka nie je, v súbore, ktorý môžete čítať len vy. Platí 60 dní alebo kým sa neodhlásite.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Snímka obrazovky je uložená</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Snímku obrazovky sa nepodarilo uložiť</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Skontrolujte, či je v priečinku Obrázky dosť miesta.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Zobraziť priečinok</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Hľadajte alebo vložte odkaz</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Hľadať podľa obrázka…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Zvuk</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizácie</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavenia</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Sekcie</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Pokračovať cez %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Prihlasujeme vás…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 sa otvorí vo vašom prehliadači. Prihláste sa tam a prihlásenie bude platiť aj tu.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Skopírované</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Kopírovať adresu</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Pre prehliadač, ktorý sa neotvoril sám</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Nič sa tu nestalo?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Vložte odkaz, na ktorom váš prehliadač skončil</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Začína sa na „wrenfieldstore://“. Niektoré prehliadače ho zobrazujú v paneli s adresou.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Dokončiť prihlásenie</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Vytvorte si účet</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Prihláste sa do svojho účtu</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Spôsoby prihlásenia</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>E-mailový kód</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Poslali sme kód na %1. Môže to chvíľu trvať.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Najprv vám e-mailom pošleme kód, aby sme vedeli, že adresa je vaša.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>E-mailom vám pošleme kód na prihlásenie. Heslo nepotrebujete.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Overovací kód</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Poslať znova o %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Poslať znova</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Poslať kód znova</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Heslo (aspoň 6 znakov)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Meno (nepovinné)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Zabudnuté heslo? Prihláste sa e-mailovým kódom</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Poslať kód e-mailom</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>alebo pokračujte cez</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofón</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastaviť</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Vyskúšať</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Prestať počúvať mikrofón</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Vyskúšať mikrofón</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Hlasitosť</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Používa sa na hovor.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Povedzte niečo: ukazovateľ sleduje váš hlas. Nič neopustí tento počítač.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Ukazuje, ako nahlas hovoríte. Nič neopustí tento počítač.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Reproduktor</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 stlmí mikrofón odkiaľkoľvek, kým trvá hovor.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M stlmí mikrofón v okne hovoru.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Odkaz</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Hľadať „%1“</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Nedávne</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Prezerané a uložené</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Nenapadá nám žiadny kúsok. Enter prehľadá všetky.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>vybrať</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>zavrieť</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Odstrániť „%1“ z nedávnych hľadaní</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Obrázok: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Otvorí sa v prehliadači</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Napíšte správu</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Priložiť obrázok alebo PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Obrázky a PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Presuňte sem obrázok alebo PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Ako vám môžeme pomôcť?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Opýtajte sa na objednávku, vrátenie alebo svoju veľkosť. Pomôžu aj obrázky.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Kde je moja objednávka?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Chcem niečo vrátiť</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Akú veľkosť si vybrať?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Načítava sa</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Zavrieť: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nová karta vpravo</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Uvoľniť kartu</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Pripnúť kartu</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Presunúť kartu do nového okna</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Znova otvoriť zavretú kartu</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Zavrieť kartu</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Zavrieť ostatné karty</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Rozbaliť bočné menu</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Zbaliť bočné menu</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Karty</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nová karta</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Späť</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Dopredu</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Odstránené zo zoznamu: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizovať</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Naposledy skontrolované: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Zatiaľ neskontrolované</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Táto kópia LOOMSTREET sa nemôže aktualizovať sama.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET hľadá nové verzie sám.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET teraz nové verzie sám nehľadá.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Nové verzie získate tam, odkiaľ máte aplikáciu. Skontrolovať ich môžete aj tu.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Pri spustení a každých šesť hodín. Čo sa nájde, stiahne sa na pozadí a nainštaluje pri ukončení; ak to nie je možné, dáme vám vedieť.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Obchod to pozastavil. Skontrolovať to môžete aj tu.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Skontrolovať aktualizácie…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verzia %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Čo je nové</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Preskočiť túto verziu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizovať</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Obnoviť</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximalizovať</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Zavrieť okno</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Zabezpečené pripojenie k %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Pripojenie nie je zabezpečené</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Váš účet bol odstránený.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Prihlásenie sa skončilo skôr, ako sa účet podarilo odstrániť. Prihláste sa znova a odstráňte ho.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Doprava</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Zadarmo</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Dane</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln zásielka</numerusform>
            <numerusform>%Ln zásielky</numerusform>
            <numerusform>%Ln zásielok</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Potvrdené</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Zabalené</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Zrušené</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Spracúva sa</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Čaká na dopravcu</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Doručuje sa</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Problém s doručením</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Žiadosť o vrátenie</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Vrátenie schválené</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Peniaze vrátené</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Vrátenie zamietnuté</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 a ešte %Ln kúsok</numerusform>
            <numerusform>%1 a ešte %Ln kúsky</numerusform>
            <numerusform>%1 a ešte %Ln kúskov</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Použite najviac %Ln znak.</numerusform>
            <numerusform>Použite najviac %Ln znaky.</numerusform>
            <numerusform>Použite najviac %Ln znakov.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Zadajte telefónne číslo, napríklad %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Zadajte dátum, napríklad %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Zadajte dátum v minulosti.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Niektorý údaj nebol prijatý. Skontrolujte ho a skúste to znova.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Zadajte platnú e-mailovú adresu.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Kód je nesprávny alebo jeho platnosť vypršala. Vyžiadajte si nový.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Priveľa pokusov. Počkajte minútu a skúste to znova.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-mail a heslo sa nezhodujú. Skúste to znova alebo sa prihláste e-mailovým kódom.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Tento spôsob prihlásenia zatiaľ nie je dostupný.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Tento účet nemá e-mailovú adresu, ktorú by sme mohli použiť. Skúste iný spôsob.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Prihlásenie bolo zrušené.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Prihlásenie zlyhalo. Skúste to znova.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Zadajte šesť číslic kódu.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Zvoľte si heslo s aspoň 6 znakmi.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Zadajte svoje heslo. Má aspoň 6 znakov.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Toto nie je odkaz, na ktorom sa vaše prihlásenie skončilo. Začína sa na „wrenfieldstore://“.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Centrum pomoci LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Podmienky</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nové okno</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Pripnúť alebo uvoľniť kartu</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Posunúť kartu dozadu</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Posunúť kartu dopredu</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Otvoriť kúsok z bočného panela na celej stránke</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Otvoriť kúsok z bočného panela na novej karte</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Vytvoriť snímku obrazovky</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Celá obrazovka</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Prejsť na začiatok sekcie</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Nasledujúca karta</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Predchádzajúca karta</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Odporúčané</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Najnovšie</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Cena: od najnižšej</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Cena: od najvyššej</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Najpredávanejšie</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Ženy</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Muži</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luxus</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Kabelky</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Doplnky</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Od %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Do %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Finálny výpredaj</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novinka</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Už len jeden kus</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Už len %Ln kus</numerusform>
            <numerusform>Už len %Ln kusy</numerusform>
            <numerusform>Už len %Ln kusov</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Najlepšia zhoda</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Tento kúsok nemožno vrátiť</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Pred objednaním skontrolujte veľkosť a farbu</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Vyrobené pre vás</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Vrátiť ho možno, len ak príde chybný</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Vyrába sa na objednávku, rátajte s dlhším časom</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Do 30 dní, nenosené, so všetkým, čo bolo v balení</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Odložte si škatuľu, ochranné vrecko a doklady</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Do 30 dní, s čistou podrážkou, v pôvodnej škatuli</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Najprv si ich vyskúšajte doma</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Do 30 dní, nenosené, s visačkami</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Najprv vyberte: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln položka v košíku</numerusform>
            <numerusform>%Ln položky v košíku</numerusform>
            <numerusform>%Ln položiek v košíku</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Kód sa nepodarilo použiť. Skúste to znova.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>„%1“ sa na položky vo vašom košíku nevzťahuje.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Máte dopravu do celého sveta ZADARMO</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Pridajte ešte %1 a dopravu do celého sveta máte ZADARMO</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Objednávka je prijatá. O pár minút sa zobrazí v časti Objednávky.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Objednávka %1 je prijatá. O pár minút sa zobrazí v časti Objednávky.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln kúsok  ·  potvrdenie sme poslali na váš e-mail</numerusform>
            <numerusform>%Ln kúsky  ·  potvrdenie sme poslali na váš e-mail</numerusform>
            <numerusform>%Ln kúskov  ·  potvrdenie sme poslali na váš e-mail</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Načítanie stránky trvalo príliš dlho.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Stránka vedie mimo pokladne.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Stránka prestala fungovať.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Pokladňu sa nepodarilo otvoriť. Skúste to znova.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Teraz o %1 menej</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>do práce</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>na rande</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>na párty</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>na svadbu</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>na dovolenku</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>na cesty</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>na každý deň</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>na víkend</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>do školy</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>na pohovor</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>na promócie</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>na festival</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>na pláž</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>na večer vonku</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>na brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>do fitka</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>na slávnostné príležitosti</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Nové prírastky</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Podľa toho, čo milujete</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Novinky týždňa</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Novinka týždňa</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Starostlivo vybrané</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Novinka týždňa · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Podľa toho, čo milujete</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Obľúbené u ľudí s vaším vkusom</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Podľa toho, čo ste si prezerali</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Práve v trende</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>K vášmu hľadaniu: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Podľa vášho vkusu: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Ideálne %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Módny tip: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>nežný štýl</translation>
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
        <translation>elegancia</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalizmus</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantika</translation>
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
        <translation>francúzsky štýl</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>odvážny štýl</translation>
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
        <translation>festivalový štýl</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>klasika</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>športový štýl</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>šik</translation>
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
        <translation>kórejský štýl</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japonský štýl</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>nový čínsky štýl</translation>
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
        <translation>sexi</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>roztomilý štýl</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>cool</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>ženský štýl</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgýnny štýl</translation>
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
        <translation>formálny štýl</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>glamour</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>avantgarda</translation>
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
        <translation>Domov</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Výpredaj</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Schránka</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Priveľa pokusov. Chvíľu počkajte a skúste to znova.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Vaše prihlásenie vypršalo. Prihláste sa znova.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Zadajte svoju e-mailovú adresu.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Niektoré údaje nevyzerajú správne. Skontrolujte ich a skúste to znova.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET má práve ťažkosti. Skúste to o chvíľu.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>To sa nepodarilo. Skúste to znova.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Prišla neočakávaná odpoveď. Skúste to znova.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET sa nepodarilo zastihnúť. Skúste to znova.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Aplikácii chýba konfigurácia.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Požiadavka trvala príliš dlho. Skúste to znova.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>V schránke čaká ešte %Ln oznámenie.</numerusform>
            <numerusform>V schránke čakajú ešte %Ln oznámenia.</numerusform>
            <numerusform>V schránke čaká ešte %Ln oznámení.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Systémové oznámenia</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Novinky o účte a službách</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Stav objednávok</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Objednávka potvrdená, odoslaná a doručená</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Vrátenia a peniaze späť</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Vrátené peniaze a stav vrátení</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Odpovede zákazníckeho servisu</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Keď vám odpovie zákaznícky servis</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Kúsky, na ktoré ste čakali, sú opäť dostupné</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Uložené alebo prezerané kúsky zlacnejú</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktivita vo Vesse</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Lajky, komentáre, noví sledujúci a správy</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Zmeny úrovne, body a nové kupóny</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Akcie a podujatia</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Výpredaje, nové kolekcie a podujatia obchodu</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Poslaná príloha</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Objednávka prijatá</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Vaša objednávka je potvrdená. O pár minút sa zobrazí v časti Objednávky.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Objednávka %1 je potvrdená. O pár minút sa zobrazí v časti Objednávky.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET sa nedokázal aktualizovať</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Kliknite na „Aktualizovať“ v hornej časti okna a nainštalujte novú verziu z obrazu disku.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Ukážka oznámenia</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Tu sa zobrazia novinky o objednávkach a odpovede zákazníckeho servisu.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Šatník</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Všetko, čo vlastníte, na jednom mieste</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Štúdio outfitov</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Zlaďte kúsky a pozrite si ich ako celok</translation>
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
        <translation>Outfity, ktoré ste si uložili</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Nápady na outfity</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nové spôsoby, ako nosiť to, čo máte v šatníku</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Poradca veľkostí</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Vaše miery a veľkosť, ktorá im sedí</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Hľadanie podľa obrázka</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Nájdite kúsok podľa obrázka</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Porovnanie</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Až štyri kúsky vedľa seba</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Hľadajú sa aktualizácie…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Máte najnovšiu verziu</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Sťahuje sa LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Kontroluje sa stiahnutý súbor…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Inštaluje sa LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Aktualizácie sa nepodarilo skontrolovať</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Aktualizáciu sa nepodarilo stiahnuť</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Pripravené na inštaláciu</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Nainštalovať aktualizáciu</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1: pripravené na inštaláciu</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 je najnovšia verzia.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET sa zavrie a nahradí ho nová verzia.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Stiahnuté. Dokončite to reštartom, inak sa nainštaluje pri najbližšom ukončení.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>V okne, ktoré sa práve otvorilo, presuňte LOOMSTREET na Aplikácie a zvoľte „Nahradiť“. Potom LOOMSTREET znova otvorte.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET sa v tomto počítači nedokázal nahradiť. Nainštalujte novú verziu z obrazu disku. Trvá to pár sekúnd.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Vaša verzia už nie je podporovaná.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Aktualizácia je stiahnutá. Dokončite ju reštartom LOOMSTREET, inak sa nainštaluje pri najbližšom ukončení.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Aktualizácie sa nepodarilo skontrolovať. Skontrolujte pripojenie a skúste to znova.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Sťahovanie zlyhalo (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Stiahnutý súbor bol neúplný alebo sa cestou zmenil. Skúste to znova.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Stiahnutý súbor sa nepodarilo prečítať.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Stiahnutý súbor nie je podpísaný LOOMSTREET, preto sa neotvoril.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Stiahnuť a nainštalovať</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Reštartovať a aktualizovať</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Otvoriť obraz disku</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Zdá sa, že ste offline.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira dlho neodpovedala.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Posielate správy príliš rýchlo. Chvíľu počkajte.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Správu v tejto podobe sa nepodarilo odoslať.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET má práve ťažkosti.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET sa nepodarilo zastihnúť.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Vyberte veľkosti: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Medzičasom vypredané a nepridané: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Pokladňu sa nepodarilo otvoriť. Skontrolujte pripojenie a skúste to znova.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Výška alebo hmotnosť nevyzerá správne. Skontrolujte čísla a jednotky.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Jedna z mier nevyzerá správne. Skontrolujte číslo alebo nechajte pole prázdne.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Voľný</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Priliehavý</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Klasický</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>S čím to nosiť: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Táto správa nebola potvrdená. Môžete to skúsiť znova.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Konverzácia je aktuálna</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira odpovedá</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira odpovedá. Tieto správy môžete odoslať o chvíľu.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Témy sa ukladajú v tomto počítači. Mira si pamätá, o čom ste sa spolu rozprávali.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Chcem niečo nájsť</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Chcem look z môjho šatníka</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Čo si obliecť večer</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET nevidí, kde ste. Zadajte svoje mesto.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Vašu polohu sa nepodarilo zistiť. Zadajte svoje mesto.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Toto mesto nepoznáme. Skúste väčšie v okolí.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira teraz nemôže zdvihnúť. Skúste to o chvíľu.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira má iný hovor. Skúste to o minútu.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Na linke to zapraskalo. Zopakujete to?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Spojenie sa prerušilo. Zavolajte znova a pokračujte.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Prístup k mikrofónu je vypnutý. Zapnite ho v časti Systémové nastavenia › Súkromie a bezpečnosť › Mikrofón a zavolajte znova.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Mikrofón sa nepodarilo spustiť. Skontrolujte, či je pripojený, a zavolajte znova.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Stlmiť mikrofón počas hovoru</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Pridané do košíka</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Pridané do košíka: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Nepodarilo sa to pridať. Skúste to na stránke produktu.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Už vás tam vediem…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Otvára sa: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predvolené v systéme</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nepripojené</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Bundy a kabáty</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Vrchné diely</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Spodné diely</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Šaty</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Topánky</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Drobnosti</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Mierne</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Slnečno</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Polooblačno</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Zamračené</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Hmlisto</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Mrholenie</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Daždivo</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Sneženie</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Prehánky</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Búrky</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Tento súbor tu už nie je.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Tento súbor sa nepodarilo prečítať.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Tento súbor je prázdny.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Tento súbor je väčší ako 10 MB. Vyberte menší.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Poslať možno len obrázky a súbory PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Táto správa možno nebola doručená.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Skryté</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Na ceste</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Doručené</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Správa pre zákaznícky servis</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Konverzácia so zákazníckym servisom</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
</context>
</TS>
