<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Sei qui</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Apri a pagina intera</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Invio in corso…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Mostra meno</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostra tutto</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Invio per inviare, Maiusc+Invio per andare a capo</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Rimuovi %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Precedenti</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Torna all’anno</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Successivi</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Espanso</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Compresso</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Vai al più recente</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln nuovo messaggio</numerusform>
            <numerusform>%Ln nuovi messaggi</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Sembra che tu sia offline. Controlla la connessione e riprova.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Nascondi la password</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Mostra la password</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, prima %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Esaurito</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Rimuovi dalla wishlist</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Salva nella wishlist</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1: esaurito</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, consigliata per te</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Voto: %L1 su 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Voto: %L1 su 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Meno</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Più</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Il tuo account</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Il tuo guardaroba, sempre con te</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Qui puoi guardare e acquistare tutto anche senza account. Con un account, il negozio sa dove sono i tuoi pacchi e che cosa stai aspettando.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Crea account</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Gli ordini in un solo posto</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Dov’è ogni pacco, e resi senza cercare lo scontrino</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Un messaggio quando conta</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>La tua taglia è tornata o il prezzo è sceso</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Membership e coupon</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Punti, livelli e i loro vantaggi</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Un checkout che ti conosce</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Il tuo indirizzo è già lì</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Servizio clienti</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Ordini, resi e taglie</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Ordini</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>In arrivo e già acquistati</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Segui un pacco</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Con il suo numero o quello dell’ordine</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Resi</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Restituisci qualcosa</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Per te</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Wishlist</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Ancora niente di salvato</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln articolo</numerusform>
            <numerusform>%Ln articoli</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Avvisi</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Di nuovo disponibili e a prezzi più bassi</translation>
    </message>
    <message>
        <source>Membership</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Membership</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Il tuo livello e i tuoi punti</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Coupon</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Da usare al checkout</translation>
    </message>
    <message>
        <source>Account</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Account</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Senza account</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profilo</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Nome, compleanno e newsletter</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Che cosa il negozio sa di te</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Conservati su questo computer</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Elimina account…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Il portachiavi non risponde</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Custodisce il tuo accesso: senza, nessuno può accedere. Sbloccalo, poi riprova.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Di nuovo disponibile</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Calo di prezzo</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Ancora disponibile</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Ora costa meno</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 al momento della richiesta</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Disattiva questo avviso</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln avviso</numerusform>
            <numerusform>%Ln avvisi</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Ti scriviamo a %1 quando un articolo torna o scende di prezzo.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Ancora nessun avviso</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Su un articolo esaurito nella tua taglia, premi “Avvisami quando torna”. Su tutti gli altri, “Avvisami se il prezzo scende”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Nuovi arrivi</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Accedi per vedere i tuoi avvisi</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Ti avvisiamo quando un articolo torna nella tua taglia o costa meno.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Non ti scriveremo per questo articolo.</numerusform>
            <numerusform>Non ti scriveremo per questi articoli.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln articolo</numerusform>
            <numerusform>%1, %Ln articoli</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Designer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln designer</numerusform>
            <numerusform>%Ln designer</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Cerca un designer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Azzera</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Lettere</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Altri designer</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Designer con %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Nessun designer corrisponde a “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Controlla l’ortografia o sfogliali tutti.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Mostra tutti i designer</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Qui non c’è ancora niente</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Ogni settimana arrivano nuovi articoli.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Esplora</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln recensione</numerusform>
            <numerusform>%Ln recensioni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln venduto</numerusform>
            <numerusform>%Ln venduti</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Prevendita</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>La più scelta: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Come lo abbino?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Confronta</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Accanto ad articoli salvati o visti</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>Spedizione GRATIS in tutto il mondo</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Per acquisti da %1 in su</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Da sapere</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Dazi inclusi</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Spedizione calcolata al checkout</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Ti scriviamo quando torna</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Avvisami quando torna</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Aggiunto</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Aggiungi al carrello</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Premi per annullare</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Apertura del checkout…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Acquista ora</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Chiamata con %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Apri in una finestra</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Termina</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Termina la chiamata</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Mostra la chiamata</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Chiama %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Richiama</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Il microfono è attivo</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Il microfono è disattivato</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Chiamata in corso…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Sta pensando</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Sta parlando</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Silenziato</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>In ascolto</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Chiamata terminata</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Riattiva microfono</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenzia</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Codice sconto</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Impossibile caricare il carrello</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>I tuoi articoli sono al sicuro. Controlla la connessione e riprova.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Il carrello è vuoto</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Gli articoli che aggiungi compaiono qui.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Continua lo shopping</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Tolto dal carrello: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Il tuo carrello precedente è scaduto. Conteneva %Ln articolo.</numerusform>
            <numerusform>Il tuo carrello precedente è scaduto. Conteneva %Ln articoli.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Rimetti</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Quantità: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Rimuovi dal carrello</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Carrello</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Carrello</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Mostra come pannello laterale</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Subtotale</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Sconto</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totale</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Dazi inclusi · Spedizione calcolata al checkout</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Checkout</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Completa il pagamento nella finestra del checkout. Il carrello resta com’è.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Collezione</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln novità negli ultimi 30 giorni</numerusform>
            <numerusform>%Ln novità negli ultimi 30 giorni</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Questa collezione non è disponibile</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Forse ha cambiato nome o non è in vendita qui (%1)</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Nessun articolo corrisponde a questi filtri</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Togli un filtro per vedere di più.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Completa il look</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Articoli da abbinare</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Sono piaciuti anche</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>A chi ha guardato questo articolo</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Potrebbe piacerti anche</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Aggiungi articoli da confrontare</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Aggiungi un articolo</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Dalla tua wishlist e da ciò che hai visto</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Salva o guarda degli articoli e aggiungili qui.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Confronta con %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Taglie</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Composizione</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Rimuovi dal confronto</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Non disponibile nel tuo Paese.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>non indicato</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Taglie: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Torna all’inizio</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Che cosa indossano gli altri</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Dai un’occhiata</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Seguiti</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Novità dai tuoi designer</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Vedi le novità</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Armadio</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Che cosa mi metto oggi?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Apri l’armadio</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>I tuoi ordini e avvisi</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>La tua membership</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Scopri i vantaggi</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Dov’è il mio pacco?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Ordine %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Vedi l’ordine</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Cali di prezzo</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>I tuoi articoli ora costano meno</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Conserva ciò che ami</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln articolo salvato</numerusform>
            <numerusform>%Ln articoli salvati</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Vedi la wishlist</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Eliminare il tuo account?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Il profilo, gli avvisi, la membership e l’elenco degli ordini vengono eliminati per sempre. Gli ordini in arrivo saranno comunque consegnati. L’operazione non si può annullare.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Scrivi il tuo indirizzo e-mail per confermare</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Elimina account</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Collezioni</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Cancella tutti i filtri</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Cerca: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Niente con questo nome</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Mostra meno</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Mostra tutto (%Ln)</numerusform>
            <numerusform>Mostra tutti (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Fino a</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Mostra articoli</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Mostra %Ln articolo</numerusform>
            <numerusform>Mostra %Ln articoli</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Chiudi i filtri</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln scelto, al massimo %L1 da confrontare</numerusform>
            <numerusform>%Ln scelti, al massimo %L1 da confrontare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln scelto</numerusform>
            <numerusform>%Ln scelti</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Scegli da due a quattro articoli</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleziona</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Più recenti</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Prezzo: dal più basso</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Prezzo: dal più alto</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Hai visto tutto (%Ln articolo)</numerusform>
            <numerusform>Hai visto tutto (%Ln articoli)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Collezione: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Apri %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Scegli una taglia</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Consigliata per te: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Nel tuo carrello</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Escludi</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 di %Ln articolo</numerusform>
            <numerusform>%L1 di %Ln articoli</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Al posto di: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Al momento niente di simile.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>La scelta di Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Il tuo look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Scegli le taglie, sostituisci ciò che ti piace meno, escludi ciò che hai già.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>poll.</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Le tue misure</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira ne ricava le tue taglie. Entrano nella conversazione, e una copia resta su questo computer finché non ti disconnetti.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrico</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperiale</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Altezza (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>piedi</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Peso (%1)</translation>
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
        <translation>Petto (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Vita (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Fianchi (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Se non le conosci, lasciale vuote.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Vestibilità preferita</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Invia a Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Elimina da questo computer</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Crea un look con questo</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Scegli la taglia e aggiungi al carrello</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Scrivi a %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look con: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>I miei articoli · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Un look con i miei articoli</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Meteo</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Altro</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Vedi il look: %Ln articolo, nella tua taglia</numerusform>
            <numerusform>Vedi il look: %Ln articoli, tutti nella tua taglia</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nuovo argomento</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Argomenti…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Un look con i miei articoli…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Le mie misure…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Meteo…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Mostra accanto alla pagina</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Suggerimenti</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Invia: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Conversazione con %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Nome dell’argomento</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Eliminare “%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Mantieni</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Argomenti</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Tu</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Inserisci le mie misure</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 parte da questi e aggiunge qualcosa di nuovo solo dove serve.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Ancora niente da abbinare</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Qui compaiono gli articoli del carrello e della wishlist.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln scelto, è il massimo</numerusform>
            <numerusform>%Ln scelti, è il massimo</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Nel carrello</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Nella wishlist</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Dove ti trovi? Il look sarà giusto per la giornata.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Un look adatto al meteo</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Città</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Usa la mia posizione</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Per quale occasione ti vesti?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Racconta a %1 l’occasione, un articolo che ami o un budget: al look pensa lei.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Accedi per vedere ciò che riguarda i tuoi ordini e i tuoi avvisi.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Servizio clienti</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifiche</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Accedi per vedere le tue notifiche</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Niente di nuovo</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Qui trovi gli ordini in arrivo, gli articoli di nuovo disponibili e i cali di prezzo.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Ciò che riguarda i tuoi ordini e gli articoli che segui comparirà qui.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Da leggere</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Segna tutto come letto</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Impostazioni delle notifiche</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Consegna prevista: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Data dell’ordine: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Pacco</numerusform>
            <numerusform>Pacchi</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Articoli</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Resi e rimborsi</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Questo ordine non è qui</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Il tuo nuovo ordine comparirà qui tra qualche minuto.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Potrebbe appartenere a un altro account.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Accedi per vedere questo ordine</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Un pacco si può seguire con il suo numero, senza account.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Quantità: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Nascosto</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Mostra di nuovo l’ordine</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Nascondi l’ordine</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Quali ordini</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>In arrivo</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Consegnato</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Tutti i tuoi ordini sono nascosti</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Niente in arrivo</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Ancora niente di consegnato</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Nessun reso</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Alcuni sono nascosti.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Mostra gli ordini nascosti</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Tutti gli ordini</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Il tuo ordine sta arrivando su questa pagina</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Ancora nessun ordine</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Ciò che ordini compare qui, con il suo viaggio fino a te.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Accedi per vedere i tuoi ordini</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Dove sono, che cosa contengono e come restituire qualcosa.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Non compare più tra i tuoi ordini su questo computer.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Passaggio %L1 di %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Indirizzo di consegna</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Avvia un reso</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Pacco %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Questo numero non è ancora noto</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Il corriere può impiegare un giorno a registrare un nuovo pacco.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Apri la pagina del corriere</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Il corriere non ha ancora comunicato niente.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Il percorso del pacco</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Al momento non disponibile</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Questa funzione è in pausa per ora. Riprova più tardi.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Rimuovi dall’elenco</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Questo articolo non è disponibile</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Forse è esaurito definitivamente o non è in vendita qui (%1).</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Ti scriviamo quando costa meno</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Avvisami se il prezzo scende</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln articolo costa meno di quando l’hai visto</numerusform>
            <numerusform>%Ln articoli costano meno di quando li hai visti</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Ancora niente da tenere d’occhio</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Nessun calo di prezzo al momento</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Salva o guarda un articolo: qui vedrai quando costa meno.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Gli articoli salvati e visti costano quanto quando li hai visti, oppure li hai visti in un’altra valuta.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Vendita finale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Foto %L1 di %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, foto %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Vedi tutto</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Non mi interessa</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Dopo %Ln giorno: %1</numerusform>
            <numerusform>Dopo %Ln giorni: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Risposta del negozio: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Recensioni</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Altre recensioni</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>In evidenza</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Domande e risposte</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefono</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Compleanno</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Scegli una data</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>L’indirizzo con cui accedi</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Paese</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Annulla modifiche</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Con noi da %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Newsletter</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Via e-mail</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Novità e offerte, a %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Via SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Serve il tuo numero di telefono, qui sopra</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Accedi per vedere il tuo profilo</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Il tuo nome, il tuo numero di telefono e ciò che possiamo inviarti.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Scopri</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Guardati un po’ intorno e troverai qui ciò che si abbina.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Visti di recente</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Cancella tutto</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>La cronologia è ancora vuota</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Gli articoli che guardi restano qui, così li ritrovi facilmente.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Accedi, e ti scriviamo appena torna.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>L’e-mail va a %1. Premi di nuovo se non la vuoi più.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>L’e-mail va a %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Ingrandisci foto %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln risultato per “%1”</numerusform>
            <numerusform>%Ln risultati per “%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Che cosa cerchi?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Nessun risultato per “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Controlla l’ortografia, prova una parola più generica o sfoglia i nuovi arrivi.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Niente corrisponde a questi filtri</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Togli un filtro o due per vedere di più di “%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Vuoi disconnetterti?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Carrello e wishlist restano su questo computer. Ordini e membership tornano quando accedi di nuovo.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tabella taglie</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Unità delle taglie</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Ordina: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Al momento non ci sono strumenti.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Numero del pacco o dell’ordine</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Si trova nell’e-mail che ti ha annunciato la spedizione.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Non conosciamo questo numero. Controllalo o riprova domani: un nuovo pacco può impiegare un giorno a comparire.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Segui</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Questa pagina non è disponibile</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Forse è stata spostata o arriverà con un’altra versione.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Premi il cuore su un articolo e ti aspetterà qui. Teniamo d’occhio anche il prezzo.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Il tuo account: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Ricerca del tuo account…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Nessun accesso effettuato</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Per ordini, avvisi e membership serve un account. Per guardare e acquistare, no.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colori</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Come il desktop</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Segue il desktop tra chiaro e scuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Cornice della finestra del desktop</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Una barra del titolo sopra le schede, come le altre finestre</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>File</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualizza</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Vai</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Che cosa si dice</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Di’ che cosa cerchi, o per quale occasione.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Annulla la chiamata</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Continua nella chat, per poter anche scrivere</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Chiamata con %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Durata della chiamata: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Mostra nella chat</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Chiudi e continua nella chat</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Termina la chiamata e chiudi</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Solo l’immagine</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Mostra la chiamata con %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Chiamata con %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Espandi a pagina intera</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Seguilo quando vuoi in Ordini.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Ricarica questa pagina</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Checkout sicuro su Shopify  ·  Il carrello resta com’è</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Un link di questa pagina porta fuori dal checkout, a %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Apri nel browser</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Il checkout non può essere mostrato qui</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Continua nel browser</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET non è configurato</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Esegui scripts/sync-secrets.sh nella cartella del progetto, poi ricompila.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Paese e valuta</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Lingua del negozio</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Apri gli articoli accanto alla griglia</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Nelle finestre larghe l’articolo compare accanto a dove l’hai trovato</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Misure in</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimetri e chilogrammi</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Pollici e libbre</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Pagina senza titolo</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Metti in pausa la presentazione</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Avvia la presentazione</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Impossibile caricare questa foto</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Paese e lingua: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Paese e lingua</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Cerca lingue</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Cerca Paesi e valute</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Lingue</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Paesi</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Nessuna lingua corrisponde a “%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Nessun Paese corrisponde a “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Nella finestra</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Un banner in alto, per qualche secondo.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Sul desktop</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Dove il sistema mostra gli avvisi delle applicazioni, anche quando nessuna finestra è aperta.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Con un suono</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Contatore sull’icona dell’applicazione</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Quante te ne restano da leggere.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Mostra un esempio</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Su che cosa</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Non verrà più consigliato su questo computer.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Pannello laterale</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Apri in una nuova scheda</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Chiudi il pannello laterale</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Larghezza del pannello laterale</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Aiuta il negozio a scegliere che cosa mostrare</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Gli indica quali pagine vengono aperte, quali articoli vengono guardati, messi nel carrello e acquistati, e quando l’applicazione si è chiusa in modo imprevisto, senza il tuo nome. Se l’opzione è disattivata, si invia solo l’essenziale.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>In ogni caso</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>L’essenziale è ciò che chiedi tu</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Le pagine che apri, le ricerche, il carrello e gli ordini devono arrivare al negozio.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Ciò che conservi resta su questo computer</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>La wishlist, ciò che hai visto e cercato, finché non lo cancelli.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Il tuo accesso è nel portachiavi</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Se non c’è, in un file leggibile solo da te. Scade dopo 60 giorni e ogni volta che ti disconnetti.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Schermata salvata</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Impossibile salvare la schermata</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Controlla che ci sia spazio nella cartella Immagini.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Mostra cartella</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Cerca o incolla un link</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Cerca per immagine…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Sezioni</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Continua con %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Accesso in corso…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 si apre nel browser. Accedi lì, e l’accesso vale anche qui.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiato</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Copia indirizzo</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Per un browser che non si è aperto da solo</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Qui non è successo niente?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Incolla il link a cui è arrivato il browser</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Comincia con “wrenfieldstore://”. Alcuni browser lo mostrano nella barra degli indirizzi.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Completa l’accesso</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Crea il tuo account</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Accedi al tuo account</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Modi per accedere</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Codice via e-mail</translation>
    </message>
    <message>
        <source>Password</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Password</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Abbiamo inviato un codice a %1. Può impiegare un minuto ad arrivare.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Prima ti inviamo un codice via e-mail, per essere certi che l’indirizzo sia tuo.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Ti inviamo un codice via e-mail per accedere. Non serve alcuna password.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Codice di verifica</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Invia di nuovo tra %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Invia di nuovo</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Invia di nuovo il codice</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Password (almeno 6 caratteri)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nome (facoltativo)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Password dimenticata? Accedi con un codice via e-mail</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Inviami un codice</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>oppure continua con</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfono</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Interrompi l’ascolto del microfono</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Prova il microfono</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>È in uso per la chiamata.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Di’ qualcosa: la barra segue la tua voce. Niente lascia questo computer.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Mostra il volume della tua voce. Niente lascia questo computer.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Altoparlante</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 disattiva il microfono ovunque tu sia, per tutta la durata di una chiamata.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M disattiva il microfono nella finestra di una chiamata.</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Cerca “%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recenti</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Visti e salvati</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Non ci viene in mente alcun articolo. Invio cerca in tutti.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>per scegliere</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>per chiudere</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Invio</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Rimuovi “%1” dalle ricerche recenti</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Foto: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Si apre nel browser</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Scrivi un messaggio</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Allega una foto o un PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Foto e PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Trascina qui una foto o un PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Come possiamo aiutarti?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Chiedi di un ordine, di un reso o della tua taglia. Anche le foto aiutano.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Dov’è il mio ordine?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Vorrei restituire qualcosa</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Quale taglia prendo?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Caricamento</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Chiudi %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nuova scheda a destra</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Sblocca scheda</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Blocca scheda</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Sposta scheda in una nuova finestra</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Riapri scheda chiusa</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Chiudi scheda</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Chiudi altre schede</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Espandi la barra laterale</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Comprimi la barra laterale</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Schede</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nuova scheda</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Rimosso da: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Ultimo controllo: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Non ancora controllato</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Questa copia di LOOMSTREET non può aggiornarsi da sola.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET cerca da solo le nuove versioni.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Per ora LOOMSTREET non cerca da solo le nuove versioni.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Le nuove versioni arrivano da dove l’hai ottenuto. Puoi comunque controllare qui.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>All’avvio e ogni sei ore. Ciò che trova viene scaricato in background e installato quando chiudi l’applicazione; se non è possibile, ti avvisa.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Il negozio l’ha messo in pausa. Puoi comunque controllare qui.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Cerca aggiornamenti…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Novità</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Chiudi finestra</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Connessione sicura a %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>La connessione non è sicura</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Il tuo account è stato eliminato.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>La sessione è terminata prima che l’account potesse essere eliminato. Accedi di nuovo per eliminarlo.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Spedizione</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratis</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Imposte</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln pacco</numerusform>
            <numerusform>%Ln pacchi</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Confermato</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Imballato</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>In attesa del corriere</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>In consegna</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Problema di consegna</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Reso richiesto</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Reso approvato</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Rimborsato</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Reso rifiutato</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 e un altro</numerusform>
            <numerusform>%1 e altri %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Usa al massimo %Ln carattere.</numerusform>
            <numerusform>Usa al massimo %Ln caratteri.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Inserisci un numero di telefono, per esempio %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Inserisci una data, per esempio %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Inserisci una data passata.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Qualcosa che hai inserito non è stato accettato. Controlla e riprova.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Inserisci un indirizzo e-mail valido.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Il codice è errato o scaduto. Richiedine uno nuovo.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Troppi tentativi. Aspetta un minuto e riprova.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-mail e password non corrispondono. Riprova o accedi con un codice via e-mail.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Questo modo di accedere non è ancora disponibile.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Quell’account non ha un indirizzo e-mail che possiamo usare. Prova un altro modo.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>L’accesso è stato annullato.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Accesso non riuscito. Riprova.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Inserisci le sei cifre del codice.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Scegli una password di almeno 6 caratteri.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Inserisci la tua password. Ha almeno 6 caratteri.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Non è il link con cui è terminato l’accesso. Comincia con “wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Centro assistenza LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Condizioni</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nuova finestra</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Blocca o sblocca scheda</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Sposta scheda indietro</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Sposta scheda avanti</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Apri il prodotto del pannello laterale a pagina intera</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Apri il prodotto del pannello laterale in una nuova scheda</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Cattura una schermata</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Vai alla pagina iniziale della sezione</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Scheda successiva</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Scheda precedente</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>In evidenza</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Più recenti</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Prezzo: dal più basso</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Prezzo: dal più alto</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Più venduti</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Donna</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Uomo</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Lusso</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Borse</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Accessori</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Da %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Fino a %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Vendita finale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Ne resta solo uno</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Ne resta solo %Ln</numerusform>
            <numerusform>Ne restano solo %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Più pertinenti</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Questo articolo non può essere reso</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Controlla taglia e colore prima di ordinare</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Realizzato per te</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Si rende solo se arriva difettoso</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Realizzato su ordinazione: serve un po’ più di tempo</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Entro 30 giorni, mai indossato, con tutto ciò che lo accompagnava</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Conserva scatola, dust bag e documenti</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Entro 30 giorni, suole intatte, nella loro scatola</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Provale prima in casa</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Entro 30 giorni, mai indossato, con i cartellini</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Scegli prima: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln articolo nel carrello</numerusform>
            <numerusform>%Ln articoli nel carrello</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Impossibile applicare il codice. Riprova.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1” non si applica agli articoli nel carrello.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Hai ottenuto la spedizione GRATIS in tutto il mondo</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Ancora %1 per la spedizione GRATIS in tutto il mondo</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Ordine effettuato. Comparirà in Ordini tra qualche minuto.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Ordine %1 effettuato. Comparirà in Ordini tra qualche minuto.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln articolo  ·  conferma inviata alla tua e-mail</numerusform>
            <numerusform>%Ln articoli  ·  conferma inviata alla tua e-mail</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>La pagina ha impiegato troppo tempo a caricarsi.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>La pagina porta fuori dal checkout.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>La pagina ha smesso di funzionare.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Impossibile aprire il checkout. Riprova.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Ora %1 in meno</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>il lavoro</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>un appuntamento</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>le feste</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>i matrimoni</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>le vacanze</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>i viaggi</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>tutti i giorni</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>il weekend</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>la scuola</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>i colloqui</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>la laurea</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>i festival</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>la spiaggia</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>una serata fuori</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>il brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>la palestra</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>gli eventi formali</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Nuovi arrivi</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>In base a ciò che ami</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Novità della settimana</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Novità della settimana</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Scelto con cura</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Novità della settimana · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>In base a ciò che ami</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Amato da chi ha gusti come i tuoi</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>In base a ciò che hai guardato</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Di tendenza ora</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Per la tua ricerca: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Perché ami lo stile %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Per %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Scelto in stile %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>dolce</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>minimal</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantico</translation>
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
        <translation>gotico</translation>
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
        <translation>francese</translation>
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
        <translation>classico</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportivo</translation>
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
        <translation>coreano</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>giapponese</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>neocinese</translation>
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
        <translation>tenero</translation>
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
        <translation>femminile</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgino</translation>
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
        <translation>formale</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>Home</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Saldi</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Posta in arrivo</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Troppi tentativi. Aspetta un momento e riprova.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>La sessione è scaduta. Accedi di nuovo.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Inserisci il tuo indirizzo e-mail.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Alcuni dati non sembrano corretti. Controllali e riprova.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET ha qualche problema in questo momento. Riprova tra poco.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Non ha funzionato. Riprova.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>È arrivata una risposta inattesa. Riprova.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Impossibile raggiungere LOOMSTREET. Riprova.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Manca la configurazione dell’applicazione.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>La richiesta ha impiegato troppo tempo. Riprova.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Un’altra notifica ti aspetta nella posta in arrivo.</numerusform>
            <numerusform>Altre %Ln notifiche ti aspettano nella posta in arrivo.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Avvisi di sistema</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Novità sull’account e sul servizio</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Aggiornamenti sugli ordini</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Ordine confermato, spedito e consegnato</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Rimborsi e resi</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Rimborsi emessi e aggiornamenti sui resi</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Risposte del servizio clienti</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Quando il servizio clienti ti risponde</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Gli articoli che aspettavi sono di nuovo disponibili</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Articoli salvati o visti costano meno</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Attività su Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Mi piace, commenti, nuovi follower e messaggi</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Cambi di livello, punti e nuovi coupon</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Promozioni ed eventi</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Saldi, nuovi drop ed eventi del negozio</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Ha inviato un allegato</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Ordine effettuato</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Il tuo ordine è confermato. Comparirà in Ordini tra qualche minuto.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>L’ordine %1 è confermato. Comparirà in Ordini tra qualche minuto.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET non è riuscito ad aggiornarsi</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Fai clic su Aggiorna in alto nella finestra per installare la nuova versione dall’immagine disco.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Anteprima della notifica</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>I nuovi aggiornamenti sugli ordini e le risposte del servizio clienti compariranno qui.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Armadio</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Tutto ciò che possiedi, in un solo posto</translation>
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
        <translation>Abbina gli articoli e guardali insieme</translation>
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
        <translation>Gli outfit che hai conservato</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Idee outfit</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nuovi modi di indossare ciò che hai nell’armadio</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Consigli sulla taglia</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Le tue misure e la taglia giusta</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Cerca per immagine</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Trova un articolo da una foto</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Confronta</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Fino a quattro articoli fianco a fianco</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Ricerca di aggiornamenti…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>È tutto aggiornato</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Download di LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Verifica del download…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Installazione di LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Impossibile cercare aggiornamenti</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Impossibile scaricare l’aggiornamento</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Pronto per l’installazione</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Installa l’aggiornamento</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>La versione %1 è pronta per l’installazione</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 è la versione più recente.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET si chiude e la nuova versione prende il suo posto.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Scaricato. Riavvia per completare, oppure si installerà alla prossima chiusura.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Nella finestra appena aperta, trascina LOOMSTREET su Applicazioni e scegli Sostituisci. Poi riapri LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET non è riuscito a sostituirsi su questo computer. Installa la nuova versione dall’immagine disco. Bastano pochi secondi.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>La versione che hai non è più supportata.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>L’aggiornamento è scaricato. Riavvia LOOMSTREET per completare, oppure si installerà alla prossima chiusura.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Impossibile cercare aggiornamenti. Controlla la connessione e riprova.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Download non riuscito (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Il download è incompleto o è stato modificato lungo il percorso. Riprova.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Impossibile leggere il file scaricato.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Il download non è firmato da LOOMSTREET, quindi non è stato aperto.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Scarica e installa</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Riavvia per aggiornare</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Apri l’immagine disco</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Sembra che tu sia offline.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira ha impiegato troppo tempo a rispondere.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Stai inviando messaggi troppo in fretta. Aspetta un momento.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Impossibile inviare questo messaggio così com’è.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET ha qualche problema in questo momento.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Impossibile raggiungere LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Scegli le taglie per: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Esaurito nel frattempo e non aggiunto: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Impossibile aprire il checkout. Controlla la connessione e riprova.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Altezza o peso non sembrano corretti. Controlla i numeri e le unità.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Una di queste misure non sembra corretta. Controlla il numero o lasciala vuota.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Ampia</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Aderente</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Regolare</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Come lo abbino? %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Questo messaggio non è stato confermato. Puoi riprovare.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>La conversazione è aggiornata</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira sta rispondendo</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira sta rispondendo. Potrai inviarli tra un momento.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Gli argomenti sono salvati su questo computer. Mira conserva la memoria delle vostre conversazioni.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Aiutami a trovare qualcosa</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Un look con il mio armadio</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Che cosa mi metto stasera</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET non può vedere dove sei. Scrivi la tua città.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Impossibile trovare la tua posizione. Scrivi la tua città.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Questa città non è nota. Prova con una più grande nei dintorni.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira non può rispondere ora. Riprova tra un momento.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira è in un’altra chiamata. Riprova tra un minuto.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>La linea ha avuto un singhiozzo. Puoi ripetere?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>È caduta la linea. Richiama per continuare a parlare.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>L’accesso al microfono è disattivato. Attivalo in Impostazioni di Sistema › Privacy e sicurezza › Microfono, poi richiama.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Impossibile avviare il microfono. Controlla che ce ne sia uno collegato, poi richiama.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Disattiva il microfono durante una chiamata</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Aggiunto al carrello</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Aggiunto al carrello: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Impossibile aggiungerlo. Prova dalla pagina del prodotto.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Ti ci porto…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Apertura: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinito di sistema</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non collegato</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Capispalla</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Top e maglie</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Pantaloni e gonne</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Abiti</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Scarpe</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Extra</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Mite</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Soleggiato</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Parzialmente nuvoloso</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Coperto</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Nebbia</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Pioggerella</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Pioggia</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Neve</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Rovesci</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Temporale</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Questo file non c’è più.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Impossibile leggere questo file.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Questo file è vuoto.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Questo file supera i 10 MB. Scegline uno più piccolo.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Si possono inviare solo foto e file PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Questo messaggio potrebbe non essere arrivato.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Nascosti</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>In arrivo</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Consegnati</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Scrivi al servizio clienti</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Conversazione con il servizio clienti</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
