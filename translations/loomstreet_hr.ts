<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hr" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Ovdje ste</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Otvori cijelu stranicu</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Šalje se…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Prikaži manje</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Prikaži sve</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter šalje, Shift+Enter započinje novi redak</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Pošalji</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Pokušaj ponovno</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ukloni</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Ukloni: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Ranije</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Natrag na odabir godine</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Kasnije</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Prošireno</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Sažeto</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Idi na najnovije</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln nova poruka</numerusform>
            <numerusform>%Ln nove poruke</numerusform>
            <numerusform>%Ln novih poruka</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Čini se da niste na mreži. Provjerite vezu i pokušajte ponovno.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zatvori</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Sakrij lozinku</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Prikaži lozinku</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, ranije %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Rasprodano</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>U tijeku</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Ukloni s liste želja</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Spremi na listu želja</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Traži</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Prethodno</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Sljedeće</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, rasprodano</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, preporučujemo vam</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Ocjena %L1 od 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Ocjena %L1 od 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Manje</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Više</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Poništi</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Vaš račun</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Odjavi se</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Vaša garderoba, uvijek uz vas</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Sve ovdje možete razgledati i kupiti i bez računa. Uz račun trgovina zna gdje su vaše pošiljke i što čekate.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Prijavi se</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Otvori račun</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Narudžbe na jednom mjestu</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Gdje je koja pošiljka, i povrat bez traženja računa</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Poruka kad je važno</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Vaša je veličina opet tu ili je cijena pala</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Članstvo i kuponi</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Bodovi, razine i pogodnosti koje donose</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Blagajna koja vas poznaje</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Vaša je adresa već upisana</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Služba za korisnike</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Narudžbe, povrati i veličine</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Narudžbe</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Na putu i prijašnje kupnje</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Prati pošiljku</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Po broju pošiljke ili narudžbe</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Povrati</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Pošalji nešto natrag</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Za vas</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Lista želja</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Još ništa nije spremljeno</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln komad</numerusform>
            <numerusform>%Ln komada</numerusform>
            <numerusform>%Ln komada</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Upozorenja</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Ponovno dostupno i niže cijene</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Članstvo</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Vaša razina i bodovi</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kuponi</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Iskoristite ih na blagajni</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Račun</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Bez računa</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Ime, rođendan i newsletteri</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privatnost</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Što trgovina saznaje o vama</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Spremljeno na ovom računalu</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Izbriši račun…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Vaš skup ključeva ne odgovara</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Čuva vašu prijavu i bez njega se nitko ne može prijaviti. Otključajte ga pa pokušajte ponovno.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Ponovno dostupno</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Sniženje cijene</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Opet na zalihi</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Sada jeftinije</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 kad ste uključili upozorenje</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Isključi ovo upozorenje</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln upozorenje</numerusform>
            <numerusform>%Ln upozorenja</numerusform>
            <numerusform>%Ln upozorenja</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Pisat ćemo vam na %1 kad komad ponovno bude dostupan ili mu padne cijena.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Još nema upozorenja</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Kod komada koji je rasprodan u vašoj veličini pritisnite „Javi mi kad ponovno stigne”. Kod svih ostalih „Javi mi kad cijena padne”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Noviteti</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Prijavite se da vidite svoja upozorenja</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Javljamo vam kad komad ponovno stigne u vašoj veličini ili kad pojeftini.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Više vam nećemo pisati o tome.</numerusform>
            <numerusform>Više vam nećemo pisati o tome.</numerusform>
            <numerusform>Više vam nećemo pisati o tome.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln komad</numerusform>
            <numerusform>%1, %Ln komada</numerusform>
            <numerusform>%1, %Ln komada</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Dizajneri</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln dizajner</numerusform>
            <numerusform>%Ln dizajnera</numerusform>
            <numerusform>%Ln dizajnera</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Pronađi dizajnera</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Očisti</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Slova</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Ostali dizajneri</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Dizajneri na %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Nijedan dizajner ne odgovara upitu „%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Provjerite pravopis ili pregledajte sve.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Prikaži sve dizajnere</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Ovdje još nema ničega</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Novi komadi stižu svaki tjedan.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Istraži</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln recenzija</numerusform>
            <numerusform>%Ln recenzije</numerusform>
            <numerusform>%Ln recenzija</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>Prodano: %Ln</numerusform>
            <numerusform>Prodano: %Ln</numerusform>
            <numerusform>Prodano: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Prednarudžba</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Najčešći odabir: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>S čime to nositi?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Usporedi</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>S komadima koje ste spremili ili pogledali</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>BESPLATNA dostava u cijeli svijet</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Za košarice od %1 ili više</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Dobro je znati</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Uključena uvozna carina</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Dostava se obračunava na blagajni</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Pisat ćemo vam kad ponovno stigne</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Javi mi kad ponovno stigne</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Dodano</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Dodaj u košaricu</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Pritisnite za odustajanje</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Otvara se blagajna…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Kupi odmah</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Poziv: %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Otvori u prozoru</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Završi</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Završi poziv</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Prikaži poziv</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Nazovi: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Nazovi ponovno</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofon je uključen</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofon je utišan</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Pozivanje…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Razmišlja</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Govori</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Utišano</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Sluša</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Poziv je završen</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Uključi mikrofon</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Utišaj</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Kod za popust</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Primijeni</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Košarica se nije mogla učitati</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Vaši su artikli na sigurnom. Provjerite vezu i pokušajte ponovno.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Vaša je košarica prazna</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Ovdje se prikazuje ono što dodate.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Nastavi kupnju</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Izvađeno iz košarice: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Vaša prijašnja košarica je istekla. U njoj je bio %Ln artikl.</numerusform>
            <numerusform>Vaša prijašnja košarica je istekla. U njoj su bila %Ln artikla.</numerusform>
            <numerusform>Vaša prijašnja košarica je istekla. U njoj je bilo %Ln artikala.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Vrati</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Količina: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Ukloni iz košarice</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Odbaci</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Košarica</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Košarica</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Prikaži kao bočnu ladicu</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Međuzbroj</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Popust</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Ukupno</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Uključena uvozna carina · Dostava se obračunava na blagajni</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Blagajna</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Dovršite plaćanje u prozoru blagajne. Košarica ostaje kakva jest.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nije dostupno</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Kolekcija</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln novitet u zadnjih 30 dana</numerusform>
            <numerusform>%Ln noviteta u zadnjih 30 dana</numerusform>
            <numerusform>%Ln noviteta u zadnjih 30 dana</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Ova kolekcija nije dostupna</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Možda je preimenovana ili se ne prodaje u ovoj zemlji (%1)</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Nijedan artikl ne odgovara filtrima</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Uklonite neki filtar da vidite više.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Upotpunite look</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Komadi uz koje se nosi</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Drugima se sviđa i</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Onima koji su pogledali ovaj komad</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Moglo bi vam se svidjeti</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Dodajte komade za usporedbu</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Dodaj komad</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>S liste želja i iz pregledanog</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Spremite ili pogledajte komade pa ih dodajte ovamo.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Usporedi s: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Veličine</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Sastav</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Ukloni iz usporedbe</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Nije dostupno u vašoj zemlji.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>nije navedeno</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Veličine: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Natrag na početak</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Što nose drugi</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Razgledaj</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Pratim</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Novosti vaših dizajnera</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Pogledaj novitete</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Ormar</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Što da danas odjenem?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Otvori ormar</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Vaše narudžbe i upozorenja</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Vaše članstvo</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Pogledaj pogodnosti</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Gdje je moja pošiljka?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Narudžba %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Pogledaj narudžbu</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Sniženja cijena</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Vaši komadi sada stoje manje</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Sačuvajte što volite</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln spremljen komad</numerusform>
            <numerusform>%Ln spremljena komada</numerusform>
            <numerusform>%Ln spremljenih komada</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Pogledaj listu želja</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Izbrisati vaš račun?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Vaš profil, upozorenja, članstvo i popis narudžbi trajno se brišu. Narudžbe koje su na putu i dalje stižu. Ovo se ne može poništiti.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Za potvrdu upišite svoju e-adresu</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Izbriši račun</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Odustani</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Kolekcije</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Očisti sve filtre</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Pronađi: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Ništa pod tim nazivom</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Prikaži manje</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Prikaži sve (%Ln)</numerusform>
            <numerusform>Prikaži sve (%Ln)</numerusform>
            <numerusform>Prikaži sve (%Ln)</numerusform>
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
        <translation>Prikaži komade</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Prikaži %Ln komad</numerusform>
            <numerusform>Prikaži %Ln komada</numerusform>
            <numerusform>Prikaži %Ln komada</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Zatvori filtre</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>Odabrano: %Ln, za usporedbu: %L1</numerusform>
            <numerusform>Odabrano: %Ln, za usporedbu: %L1</numerusform>
            <numerusform>Odabrano: %Ln, za usporedbu: %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>Odabrano: %Ln</numerusform>
            <numerusform>Odabrano: %Ln</numerusform>
            <numerusform>Odabrano: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Odaberite dva do četiri komada</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotovo</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Odaberi</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Najprije najnovije</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Cijena: od niže</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Cijena: od više</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>To je sve: %Ln komad</numerusform>
            <numerusform>To je sve: %Ln komada</numerusform>
            <numerusform>To je sve: %Ln komada</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Kolekcija: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Otvori: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Odaberite veličinu</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Veličina</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Preporučujemo vam: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>U vašoj košarici</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Zamijeni</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Izostavi</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 od %Ln komada</numerusform>
            <numerusform>%L1 od %Ln komada</numerusform>
            <numerusform>%L1 od %Ln komada</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Umjesto: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Trenutačno nema ničega sličnog.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mirin odabir</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Vaš look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Odaberite veličine, zamijenite što vam se manje sviđa i izostavite što već imate.</translation>
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
        <translation>Vaše mjere</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira prema njima određuje vaše veličine. Ulaze u vaš razgovor, a kopija ostaje na ovom računalu dok se ne odjavite.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Jedinica</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metričke</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperijalne</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Visina (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>ft</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Težina (%1)</translation>
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
        <translation>Grudi (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Struk (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Bokovi (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Ako ih ne znate, ostavite prazno.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Omiljeni kroj</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Pošalji Miri</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Izbriši s ovog računala</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Složi look uz to</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Odaberi veličinu i dodaj u košaricu</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Poruka za: %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look uz: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Moji komadi · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Složi s mojim komadima</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Vrijeme</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Više</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Pogledaj look: %Ln komad, u vašoj veličini</numerusform>
            <numerusform>Pogledaj look: %Ln komada, svaki u vašoj veličini</numerusform>
            <numerusform>Pogledaj look: %Ln komada, svaki u vašoj veličini</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nova tema</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Teme…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Osvježi</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Složi s mojim komadima…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Moje mjere…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Vrijeme…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Prikaži uz stranicu</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Prijedlozi</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Pošalji: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Razgovor: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Preimenuj</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Izbriši</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Naziv teme</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Izbrisati „%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Zadrži</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Teme</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Vi</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Unesi moje mjere</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 najprije koristi ove komade, a novo dodaje samo ondje gdje nešto nedostaje.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Još nema ničega za slaganje</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Ovdje se prikazuju komadi iz vaše košarice i s liste želja.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>Odabrano: %Ln, više ne može</numerusform>
            <numerusform>Odabrano: %Ln, više ne može</numerusform>
            <numerusform>Odabrano: %Ln, više ne može</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>U vašoj košarici</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Na vašoj listi želja</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Gdje ste? Look ćemo prilagoditi vremenu.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Želim look za ovo vrijeme</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Postavi</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Koristi moju lokaciju</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Za koju se priliku odijevate?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Navedite priliku, omiljeni komad ili budžet, a %1 će složiti look.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Prijavite se da vidite što je novo s vašim narudžbama i upozorenjima.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Prikaži</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Sve</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sustav</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Služba za korisnike</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Obavijesti</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Prijavite se da vidite svoje obavijesti</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Ništa novo</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Ovdje vam javljamo za narudžbe na putu, ponovno dostupne komade i niže cijene.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Ovdje će biti sve o vašim narudžbama i komadima koje pratite.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Nepročitano</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Označi sve kao pročitano</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Postavke obavijesti</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Očekuje se: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Narudžba</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Naručeno %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Pošiljka</numerusform>
            <numerusform>Pošiljke</numerusform>
            <numerusform>Pošiljke</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Komadi</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Povrati robe i novca</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Ove narudžbe nema ovdje</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Nova se narudžba ovdje prikazuje za nekoliko minuta.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Možda pripada drugom računu.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Prijavite se da vidite ovu narudžbu</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Pošiljku možete pratiti po broju i bez računa.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Količina: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skrivena</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Ponovno prikaži narudžbu</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Sakrij narudžbu</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Koje narudžbe</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Na putu</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Dostavljeno</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Sve su vaše narudžbe skrivene</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Ništa nije na putu</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Još ništa nije dostavljeno</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Nema povrata</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Neke su od njih skrivene.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Prikaži skrivene narudžbe</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Sve narudžbe</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Vaša narudžba uskoro stiže na ovu stranicu</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Još nema narudžbi</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Ovdje se prikazuje što ste naručili i gdje je na putu do vas.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Prijavite se da vidite svoje narudžbe</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Gdje su, što je u njima i kako nešto poslati natrag.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Skriveno iz narudžbi na ovom računalu.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Korak %L1 od %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sažetak</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Adresa dostave</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Započni povrat</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Pošiljka %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Ovaj broj još nije poznat</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Nova se pošiljka kod dostavljača katkad pojavi tek sutradan.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Otvori stranicu dostavljača</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Dostavljač o njoj još ništa nije javio.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Put pošiljke</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Privremeno nedostupno</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Ova je mogućnost zasad pauzirana. Pokušajte kasnije.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Ukloni s popisa</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Ovaj komad nije dostupan</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Možda je trajno rasprodan ili se ne prodaje u ovoj zemlji (%1).</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Pisat ćemo vam kad pojeftini</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Javi mi kad cijena padne</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln komad stoji manje nego kad ste ga vidjeli</numerusform>
            <numerusform>%Ln komada stoje manje nego kad ste ih vidjeli</numerusform>
            <numerusform>%Ln komada stoji manje nego kad ste ih vidjeli</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Još nema ničega za praćenje</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Trenutačno nema sniženja cijena</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Spremite ili pogledajte komad i ovdje ćete vidjeti kad pojeftini.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Spremljeni i pogledani komadi stoje jednako kao kad ste ih vidjeli ili ste ih vidjeli u drugoj valuti.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Završna rasprodaja</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Slike</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Slika %L1 od %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, slika %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Pogledaj sve</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Ne zanima me</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Nakon %Ln dana: %1</numerusform>
            <numerusform>Nakon %Ln dana: %1</numerusform>
            <numerusform>Nakon %Ln dana: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Odgovor trgovine: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Recenzije</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Još recenzija</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Istaknuto</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalji</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Pitanja i odgovori</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ime</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Rođendan</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Odaberite datum</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-pošta</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Adresa kojom se prijavljujete</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Zemlja</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spremi</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Odbaci promjene</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Spremljeno</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>S nama od %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Newsletteri</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>E-poštom</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Novi komadi i ponude, na %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>SMS-om</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Potreban je vaš broj telefona gore</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Prijavite se da vidite svoj profil</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Vaše ime, broj telefona i što vam smijemo slati.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Otkrij</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Malo razgledajte i ovdje ćete naći što uz to pristaje.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Nedavno pregledano</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Očisti sve</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Povijest pregledavanja još je prazna</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Ovdje se skupljaju komadi koje pogledate, da im se lako vratite.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Prijavite se i pišemo vam čim ponovno stigne.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>E-poruka stiže na %1. Pritisnite ponovno ako je više ne želite.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>E-poruka stiže na %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Povećaj sliku %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln rezultat za „%1”</numerusform>
            <numerusform>%Ln rezultata za „%1”</numerusform>
            <numerusform>%Ln rezultata za „%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Što tražite?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Nema rezultata za „%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Provjerite pravopis, pokušajte s općenitijom riječi ili pogledajte Novitete.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Ništa ne odgovara filtrima</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Uklonite filtar ili dva da vidite više za „%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Odjaviti se?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Košarica i lista želja ostaju na ovom računalu. Narudžbe i članstvo opet su dostupni kad se ponovno prijavite.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tablica veličina</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Jedinica veličina</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Poredaj: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Alati</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Trenutačno nema alata.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Broj pošiljke ili narudžbe</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Nalazi se u e-poruci o slanju.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Ne poznajemo ovaj broj. Provjerite ga ili pokušajte sutra: nova se pošiljka katkad pojavi tek sutradan.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Prati</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Ova stranica nije dostupna</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Možda je premještena ili dolazi s drugom verzijom.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Pritisnite srce na komadu i čekat će vas ovdje. Pratimo mu i cijenu.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Vaš račun: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Tražimo vaš račun…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Nitko nije prijavljen</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Za narudžbe, upozorenja i članstvo treba račun. Za razgledavanje i kupnju ne.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Izgled</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Boje</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Prema sustavu</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Prati svijetli ili tamni izgled sustava</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Svijetlo</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tamno</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Okvir prozora iz sustava</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Naslovna traka iznad kartica, kao u drugim prozorima</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datoteka</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Prikaz</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Idi</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoć</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Što je rečeno</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Recite što tražite ili za koju priliku.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Otkaži poziv</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Nastavi u chatu, i pisanjem</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Poziv: %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Trajanje poziva: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Prikaži u chatu</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Smanji</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Zatvori i nastavi u chatu</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Završi poziv i zatvori</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Samo slika</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Povećaj</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Prikaži poziv: %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Poziv: %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Proširi na cijelu stranicu</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Možete je u svakom trenutku pratiti u Narudžbama.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Ponovno učitaj stranicu</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Sigurna blagajna: Shopify  ·  Košarica ostaje kakva jest</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Poveznica na ovoj stranici vodi izvan blagajne, na %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Otvori u pregledniku</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Blagajna se ovdje ne može prikazati</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Nastavi u pregledniku</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET nije konfiguriran</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Pokrenite scripts/sync-secrets.sh u mapi projekta pa ponovno izgradite.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zatvori program</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Povijest pregledavanja</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Općenito</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Zemlja i valuta</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Jezik trgovine</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Otvaraj komade uz pregled</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>U širokim se prozorima komad prikazuje pokraj mjesta gdje je nađen</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Mjerne jedinice</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimetri i kilogrami</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Inči i funte</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Stranica bez naslova</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Pauziraj dijaprojekciju</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Pokreni dijaprojekciju</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Razmaknica</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Umanji</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Uvećaj</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Ova se slika nije mogla učitati</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Zemlja i jezik: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Zemlja i jezik</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jezik</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Traži jezike</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Traži zemlje i valute</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Jezici</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Zemlje</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Nijedan jezik ne odgovara upitu „%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Nijedna zemlja ne odgovara upitu „%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otvori</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>U prozoru</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Natpis na vrhu, na nekoliko sekundi.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Na radnoj površini</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Ondje gdje sustav prikazuje obavijesti aplikacija, i kad nijedan prozor nije otvoren.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Uz zvuk</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Broj na ikoni aplikacije</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Koliko toga još niste pročitali.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Prikaži primjer</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>O čemu obavještavati</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Više se ne preporučuje na ovom računalu.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Bočni panel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Otvori u novoj kartici</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Zatvori bočni panel</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Širina bočnog panela</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Pomozite trgovini odabrati što će prikazati</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Trgovina bez vašeg imena saznaje koje se stranice otvaraju, koji se komadi gledaju, stavljaju u košaricu i kupuju te kada se aplikacija neočekivano zatvorila. Kad je isključeno, šalje se samo ono nužno.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>U svakom slučaju</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Nužno je ono što zatražite</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Stranice koje otvorite, vaša pretraživanja, košarica i narudžbe moraju stići do trgovine.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Ono što čuvate ostaje na ovom računalu</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Vaša lista želja, što ste pregledali i što ste tražili, dok to ne očistite.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Vaša je prijava u skupu ključeva</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Gdje ga nema, u datoteci koju samo vi možete čitati. Vrijedi 60 dana ili dok se ne odjavite.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Snimka zaslona je spremljena</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Snimka zaslona nije se mogla spremiti</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Provjerite ima li mjesta u mapi Slike.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Prikaži mapu</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Tražite ili zalijepite poveznicu</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Traži po slici…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Zvuk</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Ažuriranja</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Postavke</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Odjeljci</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Nastavi uz %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Prijavljujemo vas…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 se otvara u vašem pregledniku. Prijavite se ondje i bit ćete prijavljeni i ovdje.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopirano</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Kopiraj adresu</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Za preglednik koji se nije sam otvorio</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Ovdje se ništa nije dogodilo?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Zalijepite poveznicu na kojoj je preglednik završio</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Počinje s „wrenfieldstore://”. Neki je preglednici prikazuju u adresnoj traci.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Dovrši prijavu</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Otvorite svoj račun</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Prijavite se u svoj račun</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Načini prijave</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Kod e-poštom</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lozinka</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Poslali smo kod na %1. Može potrajati minutu da stigne.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Najprije vam e-poštom šaljemo kod da budemo sigurni da je adresa vaša.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>E-poštom vam šaljemo kod za prijavu. Lozinka vam ne treba.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Kod za potvrdu</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Pošalji ponovno za %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Pošalji ponovno</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Pošalji kod ponovno</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Lozinka (najmanje 6 znakova)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Ime (neobavezno)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Zaboravljena lozinka? Prijavite se kodom iz e-pošte</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Pošalji mi kod e-poštom</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>ili nastavite uz</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zaustavi</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Isprobaj</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Prestani slušati mikrofon</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Isprobaj mikrofon</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Glasnoća</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Koristi se za poziv.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Recite nešto: traka prati vaš glas. Ništa ne napušta ovo računalo.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Pokazuje koliko ste glasni. Ništa ne napušta ovo računalo.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Zvučnik</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 utišava mikrofon gdje god bili, dok poziv traje.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M utišava mikrofon u prozoru poziva.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Poveznica</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Traži „%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Nedavno</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Pregledano i spremljeno</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Nijedan nam komad ne pada na pamet. Enter pretražuje sve.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>za odabir</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>za zatvaranje</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Ukloni „%1” iz nedavnih pretraživanja</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Slika: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Otvara se u pregledniku</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Napišite poruku</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Priloži sliku ili PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Slike i PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Ispustite sliku ili PDF ovdje</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Kako vam možemo pomoći?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Pitajte za narudžbu, povrat ili svoju veličinu. I slike pomažu.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Gdje je moja narudžba?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Želim nešto vratiti</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Koju veličinu odabrati?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Učitava se</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Zatvori: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nova kartica desno</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Otkvači karticu</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Prikvači karticu</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Premjesti karticu u novi prozor</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Ponovno otvori zatvorenu karticu</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Zatvori karticu</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Zatvori ostale kartice</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Proširi bočni izbornik</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Sažmi bočni izbornik</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Kartice</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nova kartica</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Natrag</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Naprijed</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Izbornik</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Uklonjeno s popisa: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Ažuriraj</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Zadnja provjera: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Još nije provjereno</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Ova se kopija programa LOOMSTREET ne može sama ažurirati.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET sam traži nove verzije.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET zasad ne traži sam nove verzije.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Nove verzije dolaze odande odakle imate program. I ovdje ih možete provjeriti.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Pri pokretanju i svakih šest sati. Što se nađe, preuzima se u pozadini i instalira kad zatvorite program; gdje to nije moguće, javljamo vam.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Trgovina je to pauzirala. I dalje možete provjeriti ovdje.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Provjeri ažuriranja…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verzija %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Što je novo</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Preskoči ovu verziju</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimiziraj</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Vrati</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maksimiziraj</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Zatvori prozor</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Sigurna veza: %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Veza nije sigurna</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Vaš je račun izbrisan.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Odjavljeni ste prije nego što je račun izbrisan. Prijavite se ponovno da ga izbrišete.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Dostava</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Besplatno</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Porezi</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln pošiljka</numerusform>
            <numerusform>%Ln pošiljke</numerusform>
            <numerusform>%Ln pošiljaka</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Potvrđeno</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Zapakirano</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Otkazano</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>U obradi</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Čeka dostavljača</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>U dostavi</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Problem s dostavom</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Povrat zatražen</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Povrat odobren</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Novac vraćen</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Povrat odbijen</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 i još %Ln komad</numerusform>
            <numerusform>%1 i još %Ln komada</numerusform>
            <numerusform>%1 i još %Ln komada</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Upotrijebite najviše %Ln znak.</numerusform>
            <numerusform>Upotrijebite najviše %Ln znaka.</numerusform>
            <numerusform>Upotrijebite najviše %Ln znakova.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Unesite broj telefona, na primjer %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Unesite datum, na primjer %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Unesite datum u prošlosti.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Nešto od unesenog nije prihvaćeno. Provjerite i pokušajte ponovno.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Unesite valjanu e-adresu.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Kod je pogrešan ili je istekao. Zatražite novi.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Previše pokušaja. Pričekajte minutu i pokušajte ponovno.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-adresa i lozinka ne odgovaraju. Pokušajte ponovno ili se prijavite kodom iz e-pošte.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Ovaj način prijave još nije dostupan.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Taj račun nema e-adresu koju možemo upotrijebiti. Pokušajte na drugi način.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Prijava je otkazana.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Prijava nije uspjela. Pokušajte ponovno.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Unesite šest znamenki koda.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Odaberite lozinku od najmanje 6 znakova.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Unesite svoju lozinku. Ima najmanje 6 znakova.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>To nije poveznica na kojoj je prijava završila. Ona počinje s „wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Centar za pomoć LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Uvjeti</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Novi prozor</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Prikvači ili otkvači karticu</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Pomakni karticu natrag</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Pomakni karticu naprijed</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Otvori komad iz bočnog panela na cijeloj stranici</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Otvori komad iz bočnog panela u novoj kartici</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Snimi zaslon</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Cijeli zaslon</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Idi na početak odjeljka</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Sljedeća kartica</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Prethodna kartica</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Istaknuto</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Najnovije</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Cijena: od niže</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Cijena: od više</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Najprodavanije</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Danas</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Jučer</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Žene</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Muškarci</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luksuz</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Torbe</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Modni dodaci</translation>
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
        <translation>Završna rasprodaja</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Još samo jedan komad</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Još samo %Ln komad</numerusform>
            <numerusform>Još samo %Ln komada</numerusform>
            <numerusform>Još samo %Ln komada</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Najbolje podudaranje</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Ovaj se komad ne može vratiti</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Provjerite veličinu i boju prije narudžbe</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Izrađeno za vas</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Vraća se samo ako stigne s greškom</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Izrađuje se po narudžbi pa treba više vremena</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>U roku od 30 dana, nenošeno, sa svime što je bilo u paketu</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Sačuvajte kutiju, zaštitnu vrećicu i papire</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>U roku od 30 dana, čistih potplata, u svojoj kutiji</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Najprije ih isprobajte kod kuće</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>U roku od 30 dana, nenošeno, s etiketama</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Najprije odaberite: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln artikl u košarici</numerusform>
            <numerusform>%Ln artikla u košarici</numerusform>
            <numerusform>%Ln artikala u košarici</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Kod se nije mogao primijeniti. Pokušajte ponovno.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>„%1” ne vrijedi za artikle u vašoj košarici.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Ostvarili ste BESPLATNU dostavu u cijeli svijet</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Još %1 do BESPLATNE dostave u cijeli svijet</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Narudžba je zaprimljena. Za nekoliko minuta prikazat će se u Narudžbama.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Narudžba %1 je zaprimljena. Za nekoliko minuta prikazat će se u Narudžbama.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln komad  ·  potvrda je poslana na vašu e-adresu</numerusform>
            <numerusform>%Ln komada  ·  potvrda je poslana na vašu e-adresu</numerusform>
            <numerusform>%Ln komada  ·  potvrda je poslana na vašu e-adresu</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Stranica se predugo učitavala.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Stranica vodi izvan blagajne.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Stranica je prestala raditi.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Blagajna se nije mogla otvoriti. Pokušajte ponovno.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Sada jeftinije za %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>posao</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>romantičnu večer</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>zabave</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>vjenčanja</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>godišnji odmor</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>putovanja</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>svaki dan</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>vikend</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>školu</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>razgovor za posao</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>promociju</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>festivale</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>plažu</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>večernji izlazak</translation>
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
        <translation>teretanu</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>svečane prigode</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Upravo stiglo</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Prema onome što volite</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Novo ovaj tjedan</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Novo ovaj tjedan</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Pomno odabrano</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Novo ovaj tjedan · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Prema onome što volite</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Vole kupci poput vas</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Prema onome što ste pregledavali</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Upravo u trendu</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Uz vašu pretragu: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Po vašem ukusu: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Za %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Modni odabir: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>slatki stil</translation>
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
        <translation>elegancija</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalizam</translation>
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
        <translation>francuski stil</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>odvažan stil</translation>
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
        <translation>festivalski stil</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>klasika</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportski stil</translation>
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
        <translation>korejski stil</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japanski stil</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>novi kineski stil</translation>
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
        <translation>tihi luksuz</translation>
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
        <translation>seksi</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>simpatičan stil</translation>
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
        <translation>ženstven stil</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgini stil</translation>
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
        <translation>svečani stil</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>glamur</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>avangarda</translation>
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
        <translation>vestern</translation>
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
        <translation>Početna</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Sniženo</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Sandučić</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Previše pokušaja. Pričekajte trenutak i pokušajte ponovno.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Vaša je prijava istekla. Prijavite se ponovno.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Unesite svoju e-adresu.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Neki podaci ne izgledaju ispravno. Provjerite ih i pokušajte ponovno.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET trenutačno ima poteškoća. Pokušajte ponovno uskoro.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>To nije uspjelo. Pokušajte ponovno.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Stigao je neočekivan odgovor. Pokušajte ponovno.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET nije dostupan. Pokušajte ponovno.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Aplikaciji nedostaje konfiguracija.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Zahtjev je predugo trajao. Pokušajte ponovno.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>U sandučiću čeka još %Ln obavijest.</numerusform>
            <numerusform>U sandučiću čekaju još %Ln obavijesti.</numerusform>
            <numerusform>U sandučiću čeka još %Ln obavijesti.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Obavijesti sustava</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Novosti o računu i uslugama</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Novosti o narudžbama</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Narudžba potvrđena, poslana i dostavljena</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Povrati robe i novca</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Vraćen novac i novosti o povratima</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Odgovori službe za korisnike</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Kad vam služba za korisnike odgovori</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Komadi koje čekate ponovno su dostupni</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Spremljeni ili pregledani komadi pojeftine</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktivnost na Vessi</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Lajkovi, komentari, novi pratitelji i poruke</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Promjene razine, bodovi i novi kuponi</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Akcije i događanja</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Sniženja, nove kolekcije i događanja u trgovini</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Poslan je privitak</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Narudžba je zaprimljena</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Vaša je narudžba potvrđena. Za nekoliko minuta prikazat će se u Narudžbama.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Narudžba %1 je potvrđena. Za nekoliko minuta prikazat će se u Narudžbama.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET se nije mogao ažurirati</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Kliknite „Ažuriraj” na vrhu prozora da instalirate novu verziju iz slike diska.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Primjer obavijesti</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Ovdje će se prikazivati novosti o narudžbama i odgovori službe za korisnike.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Ormar</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Sve što imate, na jednom mjestu</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Studio za outfite</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Složite komade i vidite ih kao cjelinu</translation>
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
        <translation>Outfiti koje ste sačuvali</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Ideje za outfite</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Novi načini da nosite ono što je u ormaru</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Savjet o veličini</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Vaše mjere i veličina koja im odgovara</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Traženje po slici</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Pronađite komad po slici</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Usporedba</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Do četiri komada jedan uz drugi</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Provjeravaju se ažuriranja…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Imate najnoviju verziju</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Preuzima se LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Provjerava se preuzeta datoteka…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Instalira se LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Ažuriranja se nisu mogla provjeriti</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Ažuriranje se nije moglo preuzeti</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Spremno za instalaciju</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Instaliraj ažuriranje</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1: spremno za instalaciju</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 najnovija je verzija.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET se zatvara, a nova verzija zauzima njegovo mjesto.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Preuzeto. Ponovno pokrenite za dovršetak ili će se instalirati kad sljedeći put zatvorite program.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>U prozoru koji se upravo otvorio povucite LOOMSTREET na Aplikacije i odaberite „Zamijeni”. Zatim ponovno otvorite LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET se nije mogao zamijeniti na ovom računalu. Instalirajte novu verziju iz slike diska. Traje nekoliko sekundi.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Verzija koju imate više nije podržana.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Ažuriranje je preuzeto. Ponovno pokrenite LOOMSTREET za dovršetak ili će se instalirati kad ga sljedeći put zatvorite.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Ažuriranja se nisu mogla provjeriti. Provjerite vezu i pokušajte ponovno.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Preuzimanje nije uspjelo (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Preuzeta datoteka nije potpuna ili se putem promijenila. Pokušajte ponovno.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Preuzeta se datoteka nije mogla pročitati.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Preuzetu datoteku nije potpisao LOOMSTREET pa nije otvorena.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Preuzmi i instaliraj</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Ponovno pokreni i ažuriraj</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Otvori sliku diska</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Čini se da niste na mreži.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira predugo nije odgovorila.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Prebrzo šaljete poruke. Pričekajte trenutak.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Poruka se u ovom obliku nije mogla poslati.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET trenutačno ima poteškoća.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET nije dostupan.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Odaberite veličine: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>U međuvremenu rasprodano i nije dodano: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Blagajna se nije mogla otvoriti. Provjerite vezu i pokušajte ponovno.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Ta visina ili težina ne izgleda ispravno. Provjerite brojeve i jedinice.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Jedna od mjera ne izgleda ispravno. Provjerite broj ili ga ostavite praznim.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Širok</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Pripijen</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Klasičan</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>S čime to nositi: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Ova poruka nije potvrđena. Možete pokušati ponovno.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Razgovor je ažuran</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira odgovara</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira odgovara. Ovo možete poslati za trenutak.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Teme se spremaju na ovom računalu. Mira pamti vaše zajedničke razgovore.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Želim nešto pronaći</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Želim look iz svog ormara</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Što odjenuti večeras</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET ne može vidjeti gdje ste. Upišite svoj grad.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Vaša se lokacija nije mogla pronaći. Upišite svoj grad.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Taj grad nije poznat. Pokušajte s većim u blizini.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira se trenutačno ne može javiti. Pokušajte za trenutak.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira je na drugom pozivu. Pokušajte za minutu.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Veza je zapela. Možete li ponoviti?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Veza je prekinuta. Nazovite ponovno za nastavak razgovora.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Pristup mikrofonu je isključen. Uključite ga u Postavke sustava › Privatnost i sigurnost › Mikrofon pa nazovite ponovno.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Mikrofon se nije mogao pokrenuti. Provjerite je li priključen pa nazovite ponovno.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Utišaj mikrofon tijekom poziva</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Dodano u košaricu</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Dodano u košaricu: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Nije se moglo dodati. Pokušajte sa stranice proizvoda.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Vodim vas onamo…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Otvara se: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Zadano u sustavu</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nije povezano</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Jakne i kaputi</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Gornji dijelovi</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Donji dijelovi</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Haljine</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Obuća</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Sitnice</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Blago</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Sunčano</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Djelomično oblačno</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Oblačno</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Maglovito</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Rosulja</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Kišovito</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Snježno</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Pljuskovi</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Grmljavina</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Ove datoteke više nema.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Ova se datoteka nije mogla pročitati.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Ova je datoteka prazna.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Ova je datoteka veća od 10 MB. Odaberite manju.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Mogu se slati samo slike i PDF datoteke.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Ova poruka možda nije stigla.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Skrivene</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Na putu</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Dostavljene</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Poruka službi za korisnike</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Razgovor sa službom za korisnike</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1”</translation>
    </message>
</context>
</TS>
