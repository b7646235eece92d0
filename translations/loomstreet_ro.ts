<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Ești aici</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Deschide pagina completă</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Se trimite…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Arată mai puțin</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Arată tot</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter trimite, Shift+Enter începe un rând nou</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Trimite</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Încearcă din nou</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Elimină</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Elimină: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Mai devreme</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Înapoi la an</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mai târziu</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Extins</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Restrâns</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>La cele mai recente</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln mesaj nou</numerusform>
            <numerusform>%Ln mesaje noi</numerusform>
            <numerusform>%Ln de mesaje noi</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Se pare că nu ai conexiune la internet. Verific-o și încearcă din nou.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Închide</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Ascunde parola</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Arată parola</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, înainte %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Stoc epuizat</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Se lucrează</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Elimină din favorite</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Adaugă la favorite</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Caută</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Următor</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, stoc epuizat</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, recomandată pentru tine</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Notă: %L1 din 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Notă: %L1 din 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Mai puține</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Mai multe</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Anulează</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Contul tău</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Deconectează-te</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Garderoba ta, mereu la îndemână</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Aici poți vedea și cumpăra orice fără cont. Cu un cont, magazinul știe unde îți sunt coletele și ce aștepți.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Conectează-te</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Creează cont</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Comenzile, într-un singur loc</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Unde e fiecare colet și retururi fără să cauți bonul</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Un semn când contează</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Mărimea ta a revenit sau prețul a scăzut</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Club și cupoane</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Puncte, niveluri și ce îți aduc</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Finalizezi comanda mai ușor</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Adresa ta e deja acolo</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Serviciul clienți</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Comenzi, retururi și mărimi</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Comenzi</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Pe drum și anterioare</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Urmărește un colet</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>După numărul lui sau al comenzii</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Retururi</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Trimite ceva înapoi</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Pentru tine</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Favorite</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Încă nu ai salvat nimic</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln piesă</numerusform>
            <numerusform>%Ln piese</numerusform>
            <numerusform>%Ln de piese</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alerte</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Reveniri în stoc și prețuri mai mici</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Nivelul și punctele tale</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Cupoane</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Le poți folosi la finalizarea comenzii</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cont</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Fără cont</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Nume, zi de naștere și newslettere</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Confidențialitate</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Ce află magazinul despre tine</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Păstrate pe acest computer</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Șterge contul…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Inelul de chei nu răspunde</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Îți păstrează conectarea în siguranță și nimeni nu se poate conecta fără el. Deblochează-l, apoi încearcă din nou.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Din nou în stoc</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Preț redus</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>A revenit în stoc</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Acum mai ieftin</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 când ai cerut alerta</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Oprește alerta</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln alertă</numerusform>
            <numerusform>%Ln alerte</numerusform>
            <numerusform>%Ln de alerte</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Îți scriem la %1 când o piesă revine în stoc sau i se reduce prețul.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Nicio alertă deocamdată</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>La o piesă cu stocul epuizat în mărimea ta, apasă „Anunță-mă când revine”. La oricare alta, „Anunță-mă când se ieftinește”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Noutăți</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Conectează-te ca să-ți vezi alertele</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Te anunțăm când o piesă revine în mărimea ta sau costă mai puțin.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Nu îți vom mai scrie despre ea.</numerusform>
            <numerusform>Nu îți vom mai scrie despre ele.</numerusform>
            <numerusform>Nu îți vom mai scrie despre ele.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln piesă</numerusform>
            <numerusform>%1, %Ln piese</numerusform>
            <numerusform>%1, %Ln de piese</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Designeri</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln designer</numerusform>
            <numerusform>%Ln designeri</numerusform>
            <numerusform>%Ln de designeri</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Caută un designer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Șterge</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Litere</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Alți designeri</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Designeri cu %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Niciun designer pentru „%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Verifică ortografia sau răsfoiește-i pe toți.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Arată toți designerii</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Încă nimic aici</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Piese noi sosesc în fiecare săptămână.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Explorează</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln recenzie</numerusform>
            <numerusform>%Ln recenzii</numerusform>
            <numerusform>%Ln de recenzii</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>Vândute: %Ln</numerusform>
            <numerusform>Vândute: %Ln</numerusform>
            <numerusform>Vândute: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Precomandă</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Cea mai aleasă: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Cu ce o port?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Compară</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Cu piese salvate sau văzute</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>Livrare GRATUITĂ oriunde în lume</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>La cumpărături de minimum %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Bine de știut</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Taxe vamale incluse</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Livrarea se calculează la finalizare</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Îți scriem când revine în stoc</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Anunță-mă când revine</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Adăugat</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Adaugă în coș</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Apasă pentru a renunța</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Se deschide finalizarea comenzii…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Cumpără acum</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Apel cu %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Deschide într-o fereastră</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Încheie</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Încheie apelul</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Arată apelul</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Sun-o pe %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Sună din nou</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Microfonul e pornit</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Microfonul e oprit</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Se apelează…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Se gândește</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Vorbește</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Microfon oprit</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Ascultă</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Apel încheiat</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Pornește microfonul</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Oprește microfonul</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Cod de reducere</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplică</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Coșul nu a putut fi încărcat</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Produsele tale sunt în siguranță. Verifică conexiunea și încearcă din nou.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Coșul tău e gol</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Produsele adăugate apar aici.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Continuă cumpărăturile</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Eliminat din coș: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Coșul tău anterior a expirat. Conținea %Ln produs.</numerusform>
            <numerusform>Coșul tău anterior a expirat. Conținea %Ln produse.</numerusform>
            <numerusform>Coșul tău anterior a expirat. Conținea %Ln de produse.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Pune la loc</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Cantitate: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Elimină din coș</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ascunde</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Coș</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Coș</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Arată ca panou lateral</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Subtotal</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Reducere</translation>
    </message>
    <message>
        <source>Total</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Total</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Taxe vamale incluse · Livrarea se calculează la finalizare</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Finalizare comandă</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Încheie plata în fereastra de finalizare. Coșul tău rămâne așa cum e.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Indisponibil</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Colecție</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln noutate în ultimele 30 de zile</numerusform>
            <numerusform>%Ln noutăți în ultimele 30 de zile</numerusform>
            <numerusform>%Ln de noutăți în ultimele 30 de zile</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Colecția nu este disponibilă</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Poate are alt nume sau nu se vinde în %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Niciun produs pentru aceste filtre</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Elimină un filtru ca să vezi mai multe.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Completează ținuta</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Piese de purtat cu ea</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Au mai plăcut</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Celor care au privit această piesă</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Ți-ar putea plăcea și</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Adaugă piese de comparat</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Adaugă o piesă</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Din favorite și din ce ai văzut</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Salvează sau privește piese și adaugă-le aici.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Compară cu %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Mărimi</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Compoziție</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Elimină din comparație</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Indisponibil în țara ta.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>nespecificat</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Mărimi: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Înapoi la început</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Ce poartă ceilalți</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Aruncă o privire</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Urmărești</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Vești de la designerii tăi</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Vezi ce e nou</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Garderobă</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Cu ce mă îmbrac azi?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Deschide garderoba</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Comenzile și alertele tale</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Clubul tău</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Vezi ce îți aduce</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Unde e coletul meu?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Comanda %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Vezi comanda</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Prețuri reduse</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Piesele tale costă acum mai puțin</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Păstrează ce îți place</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln piesă salvată</numerusform>
            <numerusform>%Ln piese salvate</numerusform>
            <numerusform>%Ln de piese salvate</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Vezi favoritele</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Îți ștergi contul?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Profilul, alertele, calitatea de membru și lista comenzilor tale se șterg definitiv. Comenzile aflate pe drum ajung la tine. Acțiunea nu poate fi anulată.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Scrie adresa de e-mail pentru confirmare</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Șterge contul</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulează</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Colecții</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Șterge toate filtrele</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Caută în: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Nimic cu acest nume</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Arată mai puține</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Arată tot (%Ln)</numerusform>
            <numerusform>Arată tot (%Ln)</numerusform>
            <numerusform>Arată tot (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>De la</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Până la</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Arată piesele</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Arată %Ln piesă</numerusform>
            <numerusform>Arată %Ln piese</numerusform>
            <numerusform>Arată %Ln de piese</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Închide filtrele</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln aleasă, cel mult %L1 de comparat</numerusform>
            <numerusform>%Ln alese, cel mult %L1 de comparat</numerusform>
            <numerusform>%Ln alese, cel mult %L1 de comparat</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln aleasă</numerusform>
            <numerusform>%Ln alese</numerusform>
            <numerusform>%Ln alese</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Alege între două și patru piese</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gata</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selectează</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Cele mai noi întâi</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Preț crescător</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Preț descrescător</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Ai văzut tot (%Ln)</numerusform>
            <numerusform>Ai văzut tot (%Ln)</numerusform>
            <numerusform>Ai văzut tot (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Colecție: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Deschide: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Alege o mărime</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Mărime</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Recomandată pentru tine: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>În coșul tău</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Înlocuiește</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Lasă deoparte</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 din %Ln piesă</numerusform>
            <numerusform>%L1 din %Ln piese</numerusform>
            <numerusform>%L1 din %Ln de piese</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>În loc de %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Nimic asemănător momentan.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Alegerea Mirei</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Ținuta ta</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Alege mărimile, înlocuiește ce îți place mai puțin, lasă deoparte ce ai deja.</translation>
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
        <translation>Măsurile tale</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Din ele, Mira îți calculează mărimile. Ajung în conversația voastră, iar o copie rămâne pe acest computer până te deconectezi.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unitate</translation>
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
        <translation>Înălțime (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>ft</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Greutate (%1)</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>Bust (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Talie (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Șolduri (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Lasă-le necompletate dacă nu le știi.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Croială preferată</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Trimite Mirei</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Șterge de pe acest computer</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Creează o ținută cu ea</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Alege mărimea și adaugă în coș</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Scrie către %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Ținută cu %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Piesele mele · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Ținută din piesele mele</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Vremea</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mai multe</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Vezi ținuta: %Ln piesă, în mărimea ta</numerusform>
            <numerusform>Vezi ținuta: %Ln piese, toate în mărimea ta</numerusform>
            <numerusform>Vezi ținuta: %Ln de piese, toate în mărimea ta</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Subiect nou</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Subiecte…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizează</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Ținută din piesele mele…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Măsurile mele…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Vremea…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Arată lângă pagină</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Sugestii</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Trimite: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Conversație cu %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Redenumește</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Șterge</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Numele subiectului</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Ștergi „%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Păstrează</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Subiecte</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Tu</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Introdu măsurile mele</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 le folosește întâi pe acestea și adaugă ceva nou doar unde lipsește.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Încă nu ai din ce crea o ținută</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Aici apar piesele din coș și din favorite.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln aleasă, maximum posibil</numerusform>
            <numerusform>%Ln alese, maximum posibil</numerusform>
            <numerusform>%Ln alese, maximum posibil</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>În coșul tău</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>În favoritele tale</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Unde ești? Ținuta se va potrivi cu vremea.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Ținută după vreme</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Oraș</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setează</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Folosește locația mea</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Pentru ce te îmbraci?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Spune ocazia, o piesă care îți place mult sau un buget, iar %1 creează ținuta.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Conectează-te ca să vezi ce ține de comenzile și alertele tale.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Arată</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toate</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Serviciul clienți</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificări</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Conectează-te ca să-ți vezi notificările</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Nimic nou</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Aici afli despre comenzi pe drum, piese revenite în stoc și prețuri mai mici.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Aici va fi tot ce ține de comenzile tale și de piesele pe care le urmărești.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Necitită</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Marchează tot ca citit</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Setări pentru notificări</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Sosire estimată: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Comandă</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Plasată pe %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Colet</numerusform>
            <numerusform>Colete</numerusform>
            <numerusform>Colete</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Piese</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Retururi și rambursări</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Comanda nu e aici</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Noua ta comandă apare aici în câteva minute.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Poate aparține altui cont.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Conectează-te ca să vezi comanda</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Un colet poate fi urmărit după număr, fără cont.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Cantitate: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ascunsă</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Arată din nou comanda</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Ascunde comanda</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Ce comenzi</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Pe drum</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>A ajuns</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Toate comenzile tale sunt ascunse</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Nimic pe drum</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Încă nimic livrat</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Niciun retur</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Unele sunt ascunse.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Arată comenzile ascunse</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Toate comenzile</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Comanda ta e în drum spre această pagină</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Nicio comandă deocamdată</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Aici apare ce comanzi și unde se află pe drumul spre tine.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Conectează-te ca să-ți vezi comenzile</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Unde sunt, ce conțin și cum trimiți ceva înapoi.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Nu mai apare între comenzile tale pe acest computer.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Pasul %L1 din %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Rezumat</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Adresă de livrare</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Începe un retur</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Coletul %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Nimeni nu cunoaște încă acest număr</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Poate dura o zi până când curierul recunoaște un colet nou.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Deschide pagina curierului</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Curierul nu a transmis încă nimic despre el.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Drumul coletului</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Temporar indisponibil</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Această funcție este momentan oprită. Încearcă din nou mai târziu.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Elimină din listă</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Piesa nu este disponibilă</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Poate s-a epuizat definitiv sau nu se vinde în %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Îți scriem când se ieftinește</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Anunță-mă când se ieftinește</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln piesă costă mai puțin decât atunci când ai văzut-o</numerusform>
            <numerusform>%Ln piese costă mai puțin decât atunci când le-ai văzut</numerusform>
            <numerusform>%Ln de piese costă mai puțin decât atunci când le-ai văzut</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Încă nimic de urmărit</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Niciun preț redus acum</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Salvează sau privește o piesă și vezi aici când se ieftinește.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Piesele salvate și văzute costă la fel ca atunci când le-ai văzut sau le-ai văzut în altă monedă.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Ultima șansă</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imagini</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Imaginea %L1 din %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, imaginea %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Vezi tot</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Nu mă interesează</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>După %Ln zi: %1</numerusform>
            <numerusform>După %Ln zile: %1</numerusform>
            <numerusform>După %Ln de zile: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Răspunsul magazinului: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Recenzii</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Mai multe recenzii</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descriere</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Pe scurt</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalii</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Întrebări și răspunsuri</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nume</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Zi de naștere</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Alege o dată</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Adresa cu care te conectezi</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Țară</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvează</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Renunță la modificări</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvat</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Alături de noi din %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Newslettere</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Prin e-mail</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Piese noi și oferte, la %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Prin SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Completează întâi numărul de telefon de mai sus</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Conectează-te ca să-ți vezi profilul</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Numele, numărul de telefon și ce îți putem trimite.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Descoperă</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Uită-te puțin în jur și găsești aici ce se potrivește.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Văzute recent</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Șterge tot</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Istoricul e gol</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Piesele pe care le privești se adună aici, ca să le regăsești ușor.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Conectează-te și îți scriem imediat ce revine.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>E-mailul ajunge la %1. Apasă din nou dacă nu-l mai vrei.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>E-mailul ajunge la %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Mărește imaginea %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln rezultat pentru „%1”</numerusform>
            <numerusform>%Ln rezultate pentru „%1”</numerusform>
            <numerusform>%Ln de rezultate pentru „%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Ce cauți?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Niciun rezultat pentru „%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Verifică ortografia, încearcă un cuvânt mai general sau răsfoiește Noutățile.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Nimic pentru aceste filtre</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Elimină un filtru sau două ca să vezi mai multe pentru „%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Te deconectezi?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Coșul și favoritele rămân pe acest computer. Comenzile și beneficiile de club sunt din nou disponibile după ce te reconectezi.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tabel de mărimi</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Unitatea mărimilor</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sortare: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Instrumente</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Momentan nu există instrumente.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Numărul coletului sau al comenzii</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Îl găsești în e-mailul care te-a anunțat de expediere.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Nu cunoaștem acest număr. Verifică-l sau încearcă mâine: poate dura o zi până când un colet nou este recunoscut.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Urmărește</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Pagina nu este disponibilă</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Poate s-a mutat sau vine cu altă versiune.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Apasă inima unei piese și te așteaptă aici. Îi urmărim și prețul.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Contul tău: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Îți căutăm contul…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Nimeni nu este conectat</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Comenzile, alertele și clubul au nevoie de un cont. Răsfoitul și cumpărăturile, nu.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspect</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Culori</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Ca sistemul</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Urmează aspectul luminos sau întunecat al sistemului</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Luminos</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Întunecat</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Cadrul de fereastră al sistemului</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>O bară de titlu deasupra filelor, ca la celelalte ferestre</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fișier</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vizualizare</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Navigare</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajutor</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Ce se spune</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Spune ce cauți sau pentru ce îți trebuie.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Anulează apelul</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Continuă în chat, ca să poți și scrie</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Apel cu %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Durata apelului: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Arată în chat</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Micșorează</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Închide și continuă în chat</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Încheie apelul și închide</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Doar imaginea</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Mărește</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Arată apelul cu %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Apel cu %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Extinde la pagină completă</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Urmărește-o oricând în Comenzi.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Reîncarcă pagina</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Plată securizată prin Shopify  ·  Coșul tău rămâne așa cum e</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Un link din această pagină duce în afara finalizării comenzii, la %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Deschide în browser</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Finalizarea comenzii nu poate fi afișată aici</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Continuă în browser</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET nu este configurat</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Rulează scripts/sync-secrets.sh în dosarul proiectului, apoi compilează din nou.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ieșire</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Istoric</translation>
    </message>
    <message>
        <source>General</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>General</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Țară și monedă</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Limba magazinului</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Deschide piesele lângă grilă</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>În ferestrele late, piesa apare lângă locul unde ai găsit-o</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Măsuri în</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimetri și kilograme</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Inchi și livre</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Pagină fără titlu</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Întrerupe prezentarea</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Pornește prezentarea</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spațiu</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Micșorează</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Mărește</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Imaginea nu a putut fi încărcată</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Țară și limbă: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Țară și limbă</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Limbă</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Caută limbi</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Caută țări și monede</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Limbi</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Țări</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Nicio limbă pentru „%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Nicio țară pentru „%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Deschide</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>În fereastră</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>O bandă în partea de sus, pentru câteva secunde.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Pe desktop</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Acolo unde sistemul arată mesajele aplicațiilor, chiar și fără o fereastră deschisă.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Cu sunet</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Număr pe pictograma aplicației</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Câte nu ai citit încă.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Arată un exemplu</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Despre ce</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Nu mai apare între recomandări pe acest computer.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panou lateral</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Deschide într-o filă nouă</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Închide panoul lateral</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Lățimea panoului lateral</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Ajută magazinul să aleagă ce arată</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Îi spune ce pagini sunt deschise, ce piese sunt privite, puse în coș și cumpărate și când aplicația s-a închis neașteptat, fără numele tău. Când opțiunea e dezactivată, se trimite doar strictul necesar.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>În ambele cazuri</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Strictul necesar este ce ceri tu</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Paginile deschise, căutările, coșul și comenzile tale trebuie să ajungă la magazin.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Ce păstrezi rămâne pe acest computer</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Favoritele, ce ai văzut și ce ai căutat, până le ștergi.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Conectarea ta stă în inelul de chei</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Dacă nu există, într-un fișier pe care doar tu îl poți citi. Expiră după 60 de zile și ori de câte ori te deconectezi.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Captură salvată</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Captura nu a putut fi salvată</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Verifică dacă e loc în dosarul Imagini.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Arată dosarul</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Caută sau lipește un link</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Caută după imagine…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sunet</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizări</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secțiuni</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Continuă cu %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Te conectăm…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 se deschide în browser. Conectează-te acolo și ești în cont și aici.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiat</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Copiază adresa</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Pentru un browser care nu s-a deschis singur</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Nu s-a întâmplat nimic aici?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Lipește linkul la care s-a oprit browserul</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Începe cu „wrenfieldstore://”. Unele browsere îl arată în bara de adrese.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Încheie conectarea</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Creează-ți contul</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Conectează-te la contul tău</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Moduri de conectare</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Cod prin e-mail</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parolă</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Am trimis un cod la %1. Poate dura un minut până ajunge.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Îți trimitem întâi un cod prin e-mail, ca să fim siguri că adresa e a ta.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Îți trimitem prin e-mail un cod de conectare. Nu ai nevoie de parolă.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Cod de verificare</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Retrimite peste %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Retrimite</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Retrimite codul</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Parolă (minimum 6 caractere)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nume (opțional)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Ai uitat parola? Conectează-te cu un cod prin e-mail</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Trimite-mi un cod</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>sau continuă cu</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Oprește</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Testează</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Oprește ascultarea microfonului</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Testează microfonul</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Volum</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Este folosit pentru apel.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Spune ceva: bara îți urmează vocea. Nimic nu părăsește acest computer.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Arată cât de tare vorbești. Nimic nu părăsește acest computer.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Difuzor</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 oprește microfonul de oriunde, cât timp durează apelul.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M oprește microfonul în fereastra apelului.</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Caută „%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recente</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Văzute și salvate</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Nu ne vine în minte nicio piesă. Enter caută în toate.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>alegi</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>închizi</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Elimină „%1” din căutările recente</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Imagine: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Se deschide în browser</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Scrie un mesaj</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Atașează o imagine sau un PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Imagini și PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Trage aici o imagine sau un PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Cu ce te putem ajuta?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Întreabă despre o comandă, un retur sau mărimea ta. Ajută și imaginile.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Unde e comanda mea?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Aș vrea să returnez ceva</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Ce mărime să iau?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Se încarcă</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Închide: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Filă nouă la dreapta</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Anulează fixarea filei</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Fixează fila</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Mută fila într-o fereastră nouă</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Redeschide fila închisă</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Închide fila</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Închide celelalte file</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Extinde bara laterală</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Restrânge bara laterală</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>File</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Filă nouă</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Înainte</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Meniu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Eliminat din: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizează</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Ultima verificare: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Neverificat încă</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Această copie LOOMSTREET nu se poate actualiza singură.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET caută singur versiuni noi.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Momentan, LOOMSTREET nu caută singur versiuni noi.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Versiunile noi vin de acolo de unde ai aplicația. Poți verifica și aici.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>La pornire și o dată la șase ore. Ce găsește se descarcă în fundal și se instalează la ieșire; unde nu se poate, te anunță.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Magazinul a oprit temporar căutarea. Poți verifica în continuare aici.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Caută actualizări…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versiunea %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Ce e nou</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omite această versiune</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizează</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurează</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizează</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Închide fereastra</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Conexiune securizată la %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Conexiunea nu este securizată</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Contul tău a fost șters.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Te-ai deconectat înainte ca ștergerea contului să se încheie. Conectează-te din nou ca să-l ștergi.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Livrare</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratuit</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Taxe</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln colet</numerusform>
            <numerusform>%Ln colete</numerusform>
            <numerusform>%Ln de colete</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Confirmată</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Ambalată</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulată</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>În curs</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Așteaptă curierul</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>În curs de livrare</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Problemă la livrare</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Retur solicitat</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Retur aprobat</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Rambursat</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Retur refuzat</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 și încă %Ln</numerusform>
            <numerusform>%1 și încă %Ln</numerusform>
            <numerusform>%1 și încă %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Folosește cel mult %Ln caracter.</numerusform>
            <numerusform>Folosește cel mult %Ln caractere.</numerusform>
            <numerusform>Folosește cel mult %Ln de caractere.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Introdu un număr de telefon, de exemplu %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Introdu o dată, de exemplu %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Introdu o dată din trecut.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Ceva din datele introduse nu a fost acceptat. Verifică și încearcă din nou.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Introdu o adresă de e-mail validă.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Codul este greșit sau a expirat. Cere unul nou.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Prea multe încercări. Așteaptă un minut și încearcă din nou.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-mailul și parola nu se potrivesc. Încearcă din nou sau conectează-te cu un cod prin e-mail.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Acest mod de conectare nu este încă disponibil.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Contul nu are o adresă de e-mail pe care s-o putem folosi. Încearcă alt mod.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Conectarea a fost anulată.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Conectarea nu a reușit. Încearcă din nou.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Introdu cele șase cifre ale codului.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Alege o parolă de minimum 6 caractere.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Introdu parola. Are minimum 6 caractere.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Nu acesta este linkul la care s-a încheiat conectarea. Începe cu „wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Centrul de ajutor LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Termeni și condiții</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Fereastră nouă</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Fixează fila sau anulează fixarea</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Mută fila înapoi</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Mută fila înainte</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Deschide piesa din panou pe pagină completă</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Deschide piesa din panou într-o filă nouă</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Fă o captură de ecran</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Ecran complet</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Mergi la pagina principală a secțiunii</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Fila următoare</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Fila anterioară</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Recomandate</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Cele mai noi</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Preț crescător</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Preț descrescător</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Cele mai vândute</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Azi</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Femei</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Bărbați</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Lux</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Genți</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Accesorii</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>De la %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Până la %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Fără retur</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nou</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Ultima bucată</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>A mai rămas doar %Ln</numerusform>
            <numerusform>Au mai rămas doar %Ln</numerusform>
            <numerusform>Au mai rămas doar %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Relevanță</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Această piesă nu poate fi returnată</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Verifică mărimea și culoarea înainte să comanzi</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Creată pentru tine</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Se returnează doar dacă ajunge cu defecte</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Se face la comandă, așa că durează mai mult</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>În 30 de zile, nepurtată, cu tot ce a însoțit-o</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Păstrează cutia, husa și documentele</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>În 30 de zile, cu tălpi curate, în cutia lor</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Probează-i întâi în casă</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>În 30 de zile, nepurtată, cu etichete</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Alege întâi: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln produs în coș</numerusform>
            <numerusform>%Ln produse în coș</numerusform>
            <numerusform>%Ln de produse în coș</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Codul nu a putut fi aplicat. Încearcă din nou.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>„%1” nu se aplică produselor din coș.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Ai obținut livrare GRATUITĂ oriunde în lume</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Mai adaugă produse de %1 pentru livrare GRATUITĂ oriunde în lume</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Comandă plasată. Apare în Comenzi în câteva minute.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Comanda %1 a fost plasată. Apare în Comenzi în câteva minute.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln piesă  ·  confirmarea ți-a fost trimisă pe e-mail</numerusform>
            <numerusform>%Ln piese  ·  confirmarea ți-a fost trimisă pe e-mail</numerusform>
            <numerusform>%Ln de piese  ·  confirmarea ți-a fost trimisă pe e-mail</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Pagina s-a încărcat prea greu.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Pagina duce în afara finalizării comenzii.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Pagina nu mai funcționează.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Finalizarea comenzii nu a pornit. Încearcă din nou.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Acum cu %1 mai puțin</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>birou</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>o seară romantică</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>petreceri</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>nunți</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>vacanță</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>călătorii</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>zi de zi</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>weekend</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>școală</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>interviuri</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>absolvire</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>festivaluri</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>plajă</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>o seară în oraș</translation>
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
        <translation>sală</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>evenimente elegante</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Abia sosite</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Pe gustul tău</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Noutățile săptămânii</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Nou săptămâna asta</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Ales cu grijă</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Nou săptămâna asta · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Pe gustul tău</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Pe gustul celor ca tine</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Pornind de la ce ai răsfoit</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>În trend acum</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Potrivit căutării: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Pentru că îți place stilul %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Pentru %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Ales în stil %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>dulce</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>elegant</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>street</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>gotic</translation>
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
        <translation>franțuzesc</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>îndrăzneț</translation>
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
        <translation>clasic</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sport</translation>
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
        <translation>coreean</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japonez</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>neochinezesc</translation>
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
        <translation>drăgălaș</translation>
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
        <translation>feminin</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgin</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>formal</translation>
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
        <translation>avangardist</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>utilitar</translation>
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
        <translation>Acasă</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Reduceri</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Mesaje</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Prea multe încercări. Așteaptă puțin și încearcă din nou.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Sesiunea ta a expirat. Conectează-te din nou.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Introdu adresa de e-mail.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Unele date nu par corecte. Verifică-le și încearcă din nou.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET are acum probleme. Încearcă din nou în curând.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Nu a mers. Încearcă din nou.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>A sosit un răspuns neașteptat. Încearcă din nou.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET nu a putut fi contactat. Încearcă din nou.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Aplicației îi lipsește configurarea.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Cererea a durat prea mult. Încearcă din nou.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Te mai așteaptă o notificare în mesaje.</numerusform>
            <numerusform>Te mai așteaptă %Ln notificări în mesaje.</numerusform>
            <numerusform>Te mai așteaptă %Ln de notificări în mesaje.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Anunțuri de sistem</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Noutăți despre cont și servicii</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Noutăți despre comenzi</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Comandă confirmată, expediată și livrată</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Rambursări și retururi</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Rambursări efectuate și noutăți despre retururi</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Răspunsuri de la serviciul clienți</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Când îți răspunde serviciul clienți</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Piesele de care ai întrebat sunt din nou disponibile</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Piesele salvate sau văzute se ieftinesc</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Activitate Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Aprecieri, comentarii, urmăritori noi și mesaje</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Schimbări de nivel, puncte și cupoane noi</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Promoții și evenimente</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Reduceri, lansări și evenimente ale magazinului</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>A trimis un atașament</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Comandă plasată</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Comanda ta este confirmată. Apare în Comenzi în câteva minute.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Comanda %1 este confirmată. Apare în Comenzi în câteva minute.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET nu s-a putut actualiza singur</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Apasă Actualizează în partea de sus a ferestrei ca să instalezi noua versiune din imaginea de disc.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Previzualizare notificare</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Aici apar noutățile despre comenzi și răspunsurile serviciului clienți.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Garderobă</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Tot ce ai, într-un singur loc</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Studio de outfituri</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Combină piese și vezi-le împreună</translation>
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
        <translation>Outfiturile pe care le-ai păstrat</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Idei de outfituri</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Moduri noi de a purta ce ai în garderobă</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Sfaturi de mărime</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Măsurile tale și mărimea potrivită</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Căutare după imagine</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Găsește o piesă după o imagine</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Compară</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Până la patru piese alăturate</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Se caută actualizări…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Ai cea mai nouă versiune</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Se descarcă LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Se verifică descărcarea…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Se instalează LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Actualizările nu au putut fi căutate</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Actualizarea nu a putut fi descărcată</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Gata de instalare</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Instalează actualizarea</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>Versiunea %1 este gata de instalare</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 este cea mai nouă versiune.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET se închide, iar noua versiune îi ia locul.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Descărcată. Repornește pentru a încheia; altfel se instalează la următoarea ieșire.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>În fereastra care tocmai s-a deschis, trage LOOMSTREET peste Aplicații și alege Înlocuiește. Apoi deschide din nou LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET nu s-a putut înlocui pe acest computer. Instalează noua versiune din imaginea de disc. Durează câteva secunde.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Versiunea ta nu mai este acceptată.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Actualizarea este descărcată. Repornește LOOMSTREET pentru a încheia; altfel se instalează la următoarea ieșire.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Actualizările nu au putut fi căutate. Verifică conexiunea și încearcă din nou.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Descărcarea nu a reușit (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Descărcarea a fost incompletă sau s-a modificat pe drum. Încearcă din nou.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Fișierul descărcat nu a putut fi citit.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Descărcarea nu este semnată de LOOMSTREET, așa că nu a fost deschisă.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Descarcă și instalează</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Repornește pentru actualizare</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Deschide imaginea de disc</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Se pare că nu ai conexiune la internet.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira nu a răspuns la timp.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Trimiți mesaje prea repede. Așteaptă puțin.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Mesajul nu a putut fi trimis în această formă.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET are acum probleme.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET nu a putut fi contactat.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Alege mărimile pentru: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Epuizat între timp, neadăugat: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Finalizarea comenzii nu a pornit. Verifică conexiunea și încearcă din nou.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Înălțimea sau greutatea nu pare corectă. Verifică cifrele și unitățile.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Una dintre măsuri nu pare corectă. Verifică cifra sau las-o necompletată.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Lejeră</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Pe corp</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Normală</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Cu ce port această piesă: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Mesajul nu a fost confirmat. Poți încerca din nou.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Conversația este la zi</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira răspunde</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira răspunde. Le poți trimite imediat după.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Subiectele sunt salvate pe acest computer. Mira păstrează amintirea conversațiilor voastre.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Ajută-mă să găsesc ceva</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>O ținută din garderoba mea</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Cu ce mă îmbrac diseară</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET nu are voie să vadă unde ești. Scrie orașul tău.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Locația ta nu a fost găsită. Scrie orașul tău.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Nu cunoaștem acest oraș. Încearcă unul mai mare din apropiere.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira nu poate răspunde acum. Încearcă din nou imediat.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira e în alt apel. Încearcă din nou într-un minut.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>S-a întrerupt o clipă. Mai spui o dată?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Legătura s-a întrerupt. Sună din nou ca să continuați.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Accesul la microfon este oprit. Pornește-l din Setări sistem › Confidențialitate și securitate › Microfon, apoi sună din nou.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Microfonul nu a pornit. Verifică dacă este conectat, apoi sună din nou.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Oprește microfonul în timpul apelului</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Adăugat în coșul tău</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Adăugat în coș: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Nu a putut fi adăugat. Încearcă din pagina produsului.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Te duc acolo…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Se deschide: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Implicit din sistem</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Neconectat</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Jachete și paltoane</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Topuri</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Pantaloni și fuste</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Rochii</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Încălțăminte</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Altele</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Blând</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Însorit</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Parțial noros</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Înnorat</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Ceață</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Burniță</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Ploios</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Ninsoare</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Averse</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Furtună cu tunete</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Fișierul nu mai există.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Fișierul nu a putut fi citit.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Fișierul este gol.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Fișierul depășește 10 MB. Alege unul mai mic.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Se pot trimite doar imagini și fișiere PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Este posibil ca mesajul să nu fi ajuns.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Ascunse</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Pe drum</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Livrate</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Scrie către serviciul clienți</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Conversație cu serviciul clienți</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1”</translation>
    </message>
</context>
</TS>
