<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Du er her</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Åpne hele siden</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Sender…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Vis mindre</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Vis alt</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter sender, Shift+Enter gir ny linje</translation>
    </message>
    <message>
        <source>Send</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Send</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Fjern %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Tidligere</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Tilbake til året</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senere</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Utvidet</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Slått sammen</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Gå til nyeste</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln ny melding</numerusform>
            <numerusform>%Ln nye meldinger</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Det ser ut til at du er frakoblet. Sjekk tilkoblingen og prøv igjen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Skjul passordet</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Vis passordet</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, før %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Utsolgt</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Opptatt</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Fjern fra ønskelisten</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Legg på ønskelisten</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Forrige</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, utsolgt</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, anbefalt for deg</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Vurdert til %L1 av 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Vurdert til %L1 av 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Færre</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Flere</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Angre</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Kontoen din</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Logg ut</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Vi husker garderoben din</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Alt her kan du se på og kjøpe uten konto. Med en konto vet butikken hvor pakkene dine er, og hva du venter på.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Logg inn</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Opprett konto</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Bestillingene på ett sted</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Hvor hver pakke er, og returer uten å lete etter kvitteringen</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Beskjed når det gjelder</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Størrelsen din er tilbake, eller prisen har gått ned</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Medlemskap og kuponger</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Poeng, nivåer og fordelene de gir</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>En kasse som kjenner deg</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Adressen din står der allerede</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Kundeservice</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Bestillinger, returer og størrelser</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Bestillinger</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>På vei til deg, og tidligere kjøp</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Spor en pakke</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Med pakke- eller bestillingsnummeret</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Returer</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Send noe tilbake</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>For deg</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Ønskeliste</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Ingenting lagret ennå</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln vare</numerusform>
            <numerusform>%Ln varer</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Produktvarsler</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>På lager igjen, og lavere priser</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Medlemskap</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Nivået og poengene dine</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kuponger</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Klare til bruk i kassen</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Uten konto</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Navn, fødselsdag og nyhetsbrev</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Personvern</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Hva butikken får vite om deg</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Lagret på denne datamaskinen</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Slett kontoen…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Nøkkelringen svarer ikke</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Den holder innloggingen din trygg, og ingen kan logge inn uten den. Lås den opp og prøv igjen.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>På lager igjen</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Prisfall</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>På lager igjen</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Lavere pris nå</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 da du ba om varsel</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Stopp dette varselet</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln produktvarsel</numerusform>
            <numerusform>%Ln produktvarsler</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Vi sender deg en e-post til %1 når en vare er tilbake eller prisen går ned.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Ingen produktvarsler ennå</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Er en vare utsolgt i din størrelse, trykker du på «Si fra når den er tilbake». På alle andre: «Si fra om prisfall».</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Nyheter</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Logg inn for å se produktvarslene dine</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Vi sier fra når en vare er tilbake i din størrelse eller koster mindre.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Vi sender deg ikke e-post om det.</numerusform>
            <numerusform>Vi sender deg ikke e-post om dem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln vare</numerusform>
            <numerusform>%1, %Ln varer</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Designere</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln designer</numerusform>
            <numerusform>%Ln designere</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Finn en designer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Nullstill</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Bokstaver</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Andre designere</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Designere på %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Ingen designere passer med «%1»</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Sjekk stavemåten, eller se gjennom alle sammen.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Vis alle designere</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Ingenting her ennå</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Nye varer kommer hver uke.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Utforsk</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln omtale</numerusform>
            <numerusform>%Ln omtaler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln solgt</numerusform>
            <numerusform>%Ln solgt</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Forhåndssalg</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Mest valgt: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Hjelp meg å style denne</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Sammenlign</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Ved siden av varer du har lagret eller sett på</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>GRATIS frakt til hele verden</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Når du handler for minst %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Greit å vite</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Toll er inkludert</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Frakten beregnes i kassen</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Du får e-post når den er tilbake</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Si fra når den er tilbake</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Lagt til</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Legg i handlekurven</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Trykk for å trekke tilbake</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Åpner kassen…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Kjøp nå</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Samtale med %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Åpne i eget vindu</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Avslutt samtalen</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Vis samtalen</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Ring %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Ring igjen</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofonen er på</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofonen er dempet</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Ringer…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Tenker</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Snakker</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Dempet</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Lytter</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Samtalen er avsluttet</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Opphev demping</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Demp</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Rabattkode</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Kunne ikke laste handlekurven</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Varene dine er trygge. Sjekk tilkoblingen og prøv igjen.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Handlekurven er tom</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Varene du legger til, dukker opp her.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Fortsett å handle</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1 ble tatt ut.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Den forrige handlekurven din er utløpt. Det lå %Ln vare i den.</numerusform>
            <numerusform>Den forrige handlekurven din er utløpt. Det lå %Ln varer i den.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Legg tilbake</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Antall av %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Fjern fra handlekurven</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Handlekurv</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Handlekurv</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Vis som sidepanel</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Delsum</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabatt</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totalt</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Toll er inkludert · Frakten beregnes i kassen</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Til kassen</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Fullfør betalingen i kassevinduet. Handlekurven blir som den er.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Ikke tilgjengelig</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Kolleksjon</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln ny siste 30 dager</numerusform>
            <numerusform>%Ln nye siste 30 dager</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Denne kolleksjonen er ikke tilgjengelig</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Den kan ha fått nytt navn, eller selges ikke i %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Ingen varer passer med filtrene</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Fjern et filter for å se flere.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Fullfør looken</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Varer som passer til</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Andre likte også</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>De som så på denne varen</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Du liker kanskje også</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Legg til varer å sammenligne</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Legg til en vare</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Fra ønskelisten og det du har sett på</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Lagre varer eller se på dem, og legg dem til her.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Sammenlign med %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Størrelser</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Materiale</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Fjern fra sammenligningen</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Ikke tilgjengelig i ditt land.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>ikke oppgitt</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Størrelser for %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Tilbake til den første</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Det andre går i</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Se deg om</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Følger</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Nytt fra designerne dine</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Se hva som er nytt</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Garderobe</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Hva skal jeg ha på meg i dag?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Åpne garderoben</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Bestillingene og produktvarslene dine</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Medlemskapet ditt</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Se hva du får</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Hvor er pakken min?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Bestilling %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Se bestillingen</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Prisfall</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Varene dine koster mindre nå</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Ta vare på det du elsker</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln vare lagret</numerusform>
            <numerusform>%Ln varer lagret</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Se ønskelisten</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Slette kontoen din?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Profilen, produktvarslene, medlemskapet og bestillingslisten din slettes for godt. Bestillinger som er på vei, kommer likevel frem. Dette kan ikke angres.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Skriv inn e-postadressen din for å bekrefte</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Slett kontoen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Kolleksjoner</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Nullstill alle filtre</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Søk i %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Ingenting med det navnet</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Vis færre</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Vis alle (%Ln)</numerusform>
            <numerusform>Vis alle %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Opptil</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Vis varer</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Vis %Ln vare</numerusform>
            <numerusform>Vis %Ln varer</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Lukk filtrene</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln valgt, %L1 kan sammenlignes</numerusform>
            <numerusform>%Ln valgt, %L1 kan sammenlignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln valgt</numerusform>
            <numerusform>%Ln valgt</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Velg to til fire varer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Velg</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Nyeste først</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Pris: lav til høy</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Pris: høy til lav</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Du har sett alt (%Ln)</numerusform>
            <numerusform>Du har sett alle %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Kolleksjon: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Åpne %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Velg størrelse</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Anbefalt for deg: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>I handlekurven</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Bytt ut</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Utelat</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 av %Ln vare</numerusform>
            <numerusform>%L1 av %Ln varer</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>I stedet for %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Ingenting som ligner akkurat nå.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Miras valg</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Din look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Velg størrelser, bytt ut det du liker mindre, og utelat det du har fra før.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>tommer</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Målene dine</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira regner ut størrelsene dine fra dem. De blir en del av samtalen, og en kopi blir liggende på denne datamaskinen til du logger ut.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisk</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Britisk</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Høyde (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>fot</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Vekt (%1)</translation>
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
        <translation>Byste (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Midje (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Hofte (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>La disse stå tomme hvis du ikke vet dem.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Ønsket passform</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Send til Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Slett fra denne datamaskinen</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Bygg en look rundt den</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Velg størrelse og legg i handlekurven</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Skriv til %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look med %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Varene mine · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Style med varene mine</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Vær</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mer</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Se looken: %Ln vare i din størrelse</numerusform>
            <numerusform>Se looken: %Ln varer, alle i din størrelse</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nytt tema</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Temaer…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Oppdater</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Style med varene mine…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Målene mine…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Vær…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Vis ved siden av innholdet</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Forslag</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Send: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Samtale med %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Gi nytt navn</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Navn på temaet</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Slette «%1»?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behold</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Temaer</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Legg inn målene mine</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 bruker disse først og legger bare til noe nytt der det mangler.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Ingenting å style med ennå</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Varer i handlekurven og på ønskelisten vises her.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln valgt, flere går ikke</numerusform>
            <numerusform>%Ln valgt, flere går ikke</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>I handlekurven</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>På ønskelisten</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Hvor er du? Da passer looken til været.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Style meg for været</translation>
    </message>
    <message>
        <source>City</source>
        <translation>By</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Bruk posisjonen min</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Hvilken anledning kler du deg for?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Fortell %1 om anledningen, en vare du elsker eller et budsjett, så setter hun sammen en look.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Logg inn for å se det som gjelder bestillingene og produktvarslene dine.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>System</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Kundeservice</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Varslinger</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Logg inn for å se varslingene dine</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Ingenting nytt</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Her får du vite om bestillinger på vei, varer på lager igjen og lavere priser.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Her kommer det som gjelder bestillingene dine og varene du følger.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Ulest</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Merk alle som lest</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Varslingsinnstillinger</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Ventes %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Bestilling</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Bestilt %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Pakke</numerusform>
            <numerusform>Pakker</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Varer</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Returer og refusjoner</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Denne bestillingen er ikke her</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Den nye bestillingen vises her om noen minutter.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Den kan høre til en annen konto.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Logg inn for å se denne bestillingen</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>En pakke kan spores med nummeret sitt uten konto.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Antall %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skjult</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Vis bestillingen igjen</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Skjul bestillingen</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Hvilke bestillinger</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>På vei</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Levert</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Alle bestillingene dine er skjult</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Ingenting på vei</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Ingenting levert ennå</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Ingen returer</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Noen av dem er skjult.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Vis skjulte bestillinger</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Alle bestillinger</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Bestillingen er på vei til denne siden</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Ingen bestillinger ennå</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Her vises det du bestiller, og hvor det er på vei til deg.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Logg inn for å se bestillingene dine</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Hvor de er, hva de inneholder, og hvordan du sender noe tilbake.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Skjult blant bestillingene på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Trinn %L1 av %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Oppsummering</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Leveringsadresse</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Start en retur</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Pakke %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Ingen kjenner dette nummeret ennå</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Det kan ta et døgn før transportøren kjenner en ny pakke.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Åpne transportørens side</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Transportøren har ikke meldt noe om den ennå.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Dette har skjedd med pakken</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Midlertidig utilgjengelig</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Denne funksjonen er satt på pause. Prøv igjen senere.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Fjern fra listen</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Denne varen er ikke tilgjengelig</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Den kan være utsolgt for godt, eller selges ikke i %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Du får e-post når den koster mindre</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Si fra om prisfall</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln vare koster mindre enn da du så den</numerusform>
            <numerusform>%Ln varer koster mindre enn da du så dem</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Ingenting å følge med på ennå</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Ingen prisfall akkurat nå</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Lagre en vare eller se på den, så ser du her når den koster mindre.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Varene du har lagret og sett på, koster det samme som da du så dem, eller ble sett i en annen valuta.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Bilde %L1 av %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, bilde %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Se alle</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Ikke interessert</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Etter %Ln dag: %1</numerusform>
            <numerusform>Etter %Ln dager: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Butikken svarte: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Omtaler</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Flere omtaler</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beskrivelse</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Høydepunkter</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Spørsmål og svar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Fødselsdag</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Velg en dato</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Adressen du logger inn med</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Lagre</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Forkast endringer</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Lagret</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Hos oss siden %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Nyhetsbrev</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>På e-post</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Nyheter og tilbud, til %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>På SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Krever telefonnummeret ditt ovenfor</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Logg inn for å se profilen din</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Navnet ditt, telefonnummeret ditt og hva vi kan sende deg.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Oppdag</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Se deg litt om, så finner du her det som passer til.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Sist sett på</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Fjern alt</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Ingen historikk ennå</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Varene du ser på, samles her, så du finner tilbake til dem.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Logg inn, så sender vi deg en e-post når den er tilbake.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>E-posten går til %1. Trykk igjen hvis du ikke vil ha den lenger.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>E-posten går til %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Forstørr bilde %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln treff på «%1»</numerusform>
            <numerusform>%Ln treff på «%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Hva leter du etter?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Ingen treff på «%1»</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Sjekk stavemåten, prøv et videre ord, eller se gjennom Nyheter.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Ingenting passer med filtrene</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Fjern et filter eller to for å se mer av «%1»</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Logge ut?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Handlekurven og ønskelisten blir liggende på denne datamaskinen. Bestillinger og medlemskap er der igjen når du logger inn på nytt.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Størrelsestabell</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Enhet for størrelser</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sorter: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Verktøy</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Det er ingen verktøy for øyeblikket.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Pakke- eller bestillingsnummer</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Det står i e-posten du fikk da pakken ble sendt.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Vi kjenner ikke dette nummeret. Sjekk det, eller prøv igjen i morgen: Det kan ta et døgn før en ny pakke er kjent.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spor</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Denne siden er ikke tilgjengelig</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Den kan ha blitt flyttet, eller hører til en annen versjon.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Trykk på hjertet ved en vare, så venter den på deg her. Vi følger med på prisen også.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Kontoen din: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Ser etter kontoen din…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Ingen er logget inn</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Bestillinger, produktvarsler og medlemskap krever konto. Å se seg om og handle gjør det ikke.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Utseende</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farger</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Som skrivebordet</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Følger skrivebordet mellom lyst og mørkt</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Lyst</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Mørkt</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Skrivebordets vindusramme</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>En tittellinje over fanene, slik andre vinduer har</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gå</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Teksting av samtalen</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Si hva du leter etter, eller hva det er til.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Avbryt oppringningen</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Fortsett i chatten for å skrive også</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Samtale med %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Samtalens varighet: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Vis i chatten</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Gjør mindre</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Lukk og fortsett i chatten</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Avslutt samtalen og lukk</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Bare bildet</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Gjør større</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Vis samtalen med %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Samtale med %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Utvid til hel side</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Følg den når som helst under Bestillinger.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Last inn siden på nytt</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Sikker betaling hos Shopify  ·  Handlekurven blir som den er</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>En lenke på denne siden fører ut av kassen, til %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Åpne i nettleseren</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Kassen kan ikke vises her</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Fortsett i nettleseren</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET er ikke konfigurert</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Kjør scripts/sync-secrets.sh i prosjektmappen, og bygg på nytt.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Historikk</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Land og valuta</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Språk i butikken</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Åpne varer ved siden av rutenettet</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>I brede vinduer vises en vare ved siden av der du fant den</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Mål i</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimeter og kilogram</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Tommer og pund</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Side uten navn</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Sett lysbildevisningen på pause</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Spill av lysbildevisningen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mellomrom</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom ut</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom inn</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Bildet kunne ikke lastes</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Marked og språk: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Marked og språk</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Søk etter språk</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Søk etter land og valuta</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Ingen språk passer med «%1»</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Ingen land passer med «%1»</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>I vinduet</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Et banner øverst i noen sekunder.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>På skrivebordet</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Der skrivebordet viser varslinger fra programmer, også når ingen vinduer er åpne.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Med lyd</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Antall på programikonet</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Hvor mye du ikke har lest.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Vis et eksempel</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Hva det gjelder</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Anbefales ikke lenger på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Sidepanel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Åpne i ny fane</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Lukk sidepanelet</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Bredde på sidepanelet</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Hjelp butikken å velge hva den skal vise</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Forteller den hvilke sider og varer som blir sett på, lagt i handlekurven og kjøpt, og når programmet ble avsluttet uventet, uten navnet ditt. Når dette er av, sendes bare det nødvendige.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Uansett</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Nødvendig er det du ber om</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Sidene du åpner, søkene dine, handlekurven og bestillingene dine må nå butikken.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Det du tar vare på, blir på denne datamaskinen</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Ønskelisten, det du har sett på og det du har søkt etter, til du fjerner det.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Innloggingen din ligger i nøkkelringen</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Finnes det ingen, ligger den i en fil som bare du kan lese. Den utløper etter 60 dager, og når du logger ut.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Skjermbildet er lagret</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Skjermbildet kunne ikke lagres</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Sjekk at det er plass i Bilder-mappen.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Vis mappen</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Søk, eller lim inn en lenke</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Søk med bilde…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Lyd</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Oppdateringer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Seksjoner</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Fortsett med %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Logger deg inn…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 åpnes i nettleseren. Logg inn der, så er du logget inn her.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Kopier adressen</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>For en nettleser som ikke åpnet av seg selv</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Skjedde det ingenting her?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Lim inn lenken nettleseren endte på</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Den begynner med «wrenfieldstore://». Noen nettlesere viser den i adressefeltet.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Fullfør innloggingen</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Opprett kontoen din</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Logg inn på kontoen din</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Måter å logge inn på</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Kode på e-post</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Vi har sendt en kode til %1. Det kan ta et minutt før den kommer.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Vi sender deg først en kode på e-post, for å være sikre på at adressen er din.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Vi sender deg en kode på e-post som du logger inn med. Du trenger ikke noe passord.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Bekreftelseskode</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Send på nytt om %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Send på nytt</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Send koden på nytt</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Passord (minst 6 tegn)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Navn (valgfritt)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Glemt passordet? Logg inn med en kode på e-post i stedet</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Send meg en kode på e-post</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>eller fortsett med</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Prøv</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Slutt å lytte til mikrofonen</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Prøv mikrofonen</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Lydstyrke</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Den er i bruk i samtalen.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Si noe: Stolpen følger stemmen din. Ingenting forlater denne datamaskinen.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Viser hvor høyt du snakker. Ingenting forlater denne datamaskinen.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Høyttaler</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 demper mikrofonen uansett hvor du er, så lenge en samtale varer.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M demper mikrofonen i samtalevinduet.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lenke</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Søk etter «%1»</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Siste søk</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Sett og lagret</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Ingen varer passer. Enter søker i alle.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>for å velge</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>for å lukke</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Fjern «%1» fra siste søk</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Bilde: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Åpnes i nettleseren</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Skriv en melding</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Legg ved et bilde eller en PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Bilder og PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Slipp et bilde eller en PDF her</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Hva kan vi hjelpe med?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Spør om en bestilling, en retur eller størrelsen din. Bilder hjelper også.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Hvor er bestillingen min?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Jeg vil gjerne returnere noe</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Hvilken størrelse bør jeg ta?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Laster</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Lukk %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Ny fane til høyre</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Løsne fanen</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Fest fanen</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Flytt fanen til nytt vindu</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Åpne lukket fane på nytt</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Lukk fanen</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Lukk andre faner</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Utvid sidefeltet</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Skjul sidefeltet</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Faner</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Ny fane</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Frem</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Meny</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Fjernet fra: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Oppdater</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Sist sjekket: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Ikke sjekket ennå</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Denne kopien av LOOMSTREET kan ikke oppdatere seg selv.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET ser selv etter nye versjoner.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET ser foreløpig ikke selv etter nye versjoner.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Nye versjoner får du der du fikk programmet fra. Du kan likevel sjekke her.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Ved oppstart og hver sjette time. Det som finnes, lastes ned i bakgrunnen og installeres når du avslutter. Går ikke det, får du beskjed.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Butikken har satt det på pause. Du kan likevel sjekke her.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Se etter oppdateringer…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versjon %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Hva er nytt</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Hopp over denne versjonen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gjenopprett</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maksimer</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Lukk vinduet</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Sikker tilkobling til %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Tilkoblingen er ikke sikker</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Kontoen din er slettet.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Du ble logget ut før kontoen kunne slettes. Logg inn igjen for å slette den.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Frakt</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratis</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Avgifter</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln pakke</numerusform>
            <numerusform>%Ln pakker</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Bekreftet</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Pakket</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Kansellert</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Under behandling</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Venter på transportøren</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Ute til levering</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Problem med leveringen</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Retur forespurt</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Retur godkjent</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Refundert</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Retur avslått</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 og %Ln til</numerusform>
            <numerusform>%1 og %Ln til</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Bruk høyst %Ln tegn.</numerusform>
            <numerusform>Bruk høyst %Ln tegn.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Skriv inn et telefonnummer, for eksempel %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Skriv inn en dato, for eksempel %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Skriv inn en dato som har vært.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Noe du skrev inn, ble ikke godtatt. Sjekk det og prøv igjen.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Skriv inn en gyldig e-postadresse.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Koden er feil eller utløpt. Be om en ny.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>For mange forsøk. Vent et minutt og prøv igjen.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-posten og passordet stemmer ikke overens. Prøv igjen, eller logg inn med en kode på e-post.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Denne måten å logge inn på er ikke tilgjengelig ennå.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Den kontoen har ingen e-postadresse vi kan bruke. Prøv en annen måte.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Innloggingen ble avbrutt.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Innloggingen mislyktes. Prøv igjen.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Skriv inn de seks sifrene i koden.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Velg et passord på minst 6 tegn.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Skriv inn passordet ditt. Det har minst 6 tegn.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Det er ikke lenken innloggingen endte på. Den begynner med «wrenfieldstore://».</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Hjelpesenter for LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Avtaler og vilkår</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nytt vindu</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Fest eller løsne fanen</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Flytt fanen bakover</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Flytt fanen fremover</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Åpne varen i sidepanelet på hel side</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Åpne varen i sidepanelet i ny fane</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Ta skjermbilde</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Fullskjerm</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Gå til seksjonens startside</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Neste fane</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Forrige fane</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Utvalgte</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Nyeste</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Pris: lav til høy</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Pris: høy til lav</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Bestselgere</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Dame</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Herre</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luksus</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Vesker</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Tilbehør</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Fra %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Opptil %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nyhet</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Bare én igjen</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Bare %Ln igjen</numerusform>
            <numerusform>Bare %Ln igjen</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Mest relevante</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Denne varen kan ikke returneres</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Sjekk størrelse og farge før du bestiller</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Laget for deg</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Kan bare returneres hvis den har feil</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Lages på bestilling, så regn med litt lengre tid</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Innen 30 dager, ubrukt, med alt som fulgte med</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Ta vare på eske, støvpose og papirer</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Innen 30 dager, uten merker på sålene, i esken sin</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Prøv dem innendørs først</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Innen 30 dager, ubrukt, med merkelappene på</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Velg først: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln vare i handlekurven</numerusform>
            <numerusform>%Ln varer i handlekurven</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Koden kunne ikke brukes. Prøv igjen.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>«%1» gjelder ikke for varene i handlekurven.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Du har fått GRATIS frakt til hele verden</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Handle for %1 til og få GRATIS frakt til hele verden</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Bestillingen er mottatt. Den vises under Bestillinger om noen minutter.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Bestilling %1 er mottatt. Den vises under Bestillinger om noen minutter.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln vare  ·  bekreftelse sendt til e-posten din</numerusform>
            <numerusform>%Ln varer  ·  bekreftelse sendt til e-posten din</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Siden brukte for lang tid på å laste.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Siden fører ut av kassen.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Siden sluttet å virke.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Kunne ikke åpne kassen. Prøv igjen.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>%1 billigere nå</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>jobb</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>daten</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>fest</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>bryllup</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>ferien</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>reisen</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>hverdags</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>helgen</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>skolen</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>jobbintervjuet</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>avgangsfesten</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>festivalen</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>stranden</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>en kveld på byen</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>brunsjen</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>trening</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>formelle anledninger</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Nyheter</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Basert på det du elsker</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Nytt denne uken</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Nytt denne uken</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Håndplukket</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Nytt denne uken · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Basert på det du elsker</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Elsket av kunder som deg</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Basert på det du har sett på</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>På moten nå</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Passer til søket ditt: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Din smak: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Til %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Stilvalg: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>søt</translation>
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
        <translation>minimalistisk</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantisk</translation>
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
        <translation>fransk</translation>
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
        <translation>klassisk</translation>
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
        <translation>koreansk</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japansk</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>nykinesisk</translation>
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
        <translation>nusselig</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>kul</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>feminin</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgyn</translation>
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
        <translation>formell</translation>
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
        <translation>avantgarde</translation>
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
        <translation>Hjem</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Salg</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Innboks</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>For mange forsøk. Vent et øyeblikk og prøv igjen.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Økten din er utløpt. Logg inn igjen.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Skriv inn e-postadressen din.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Noen av opplysningene ser ikke riktige ut. Sjekk dem og prøv igjen.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET har problemer akkurat nå. Prøv igjen om litt.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Det gikk ikke. Prøv igjen.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Vi fikk et uventet svar. Prøv igjen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Fikk ikke kontakt med LOOMSTREET. Prøv igjen.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Appen mangler konfigurasjonen sin.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Forespørselen tok for lang tid. Prøv igjen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln varsling til venter i innboksen.</numerusform>
            <numerusform>%Ln varslinger til venter i innboksen.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Systemvarsler</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Nytt om konto og tjeneste</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Nytt om bestillinger</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Bestilling bekreftet, sendt og levert</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Refusjoner og returer</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Utbetalte refusjoner og nytt om returer</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Svar fra kundeservice</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Når kundeservice svarer deg</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Varer du har produktvarsel på, er på lager igjen</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Varer du har lagret eller sett på, blir billigere</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktivitet i Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Likerklikk, kommentarer, nye følgere og meldinger</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Nytt nivå, poeng og nye kuponger</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Kampanjer og arrangementer</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Salg, nye slipp og arrangementer i butikken</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Sendte et vedlegg</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Bestillingen er mottatt</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Bestillingen din er bekreftet. Den vises under Bestillinger om noen minutter.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Bestilling %1 er bekreftet. Den vises under Bestillinger om noen minutter.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET kunne ikke oppdatere seg selv</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Klikk på Oppdater øverst i vinduet for å installere den nye versjonen fra diskbildet.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Eksempel på varsling</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Nytt om bestillinger og svar fra kundeservice dukker opp her.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Garderobe</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Alt du eier, på ett sted</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Antrekkstudio</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Sett varer sammen og se dem som ett</translation>
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
        <translation>Antrekkene du har tatt vare på</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Antrekksideer</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nye måter å bruke det du har i garderoben på</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Størrelsesråd</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Målene dine, og størrelsen som passer til dem</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Søk med bilde</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Finn en vare ut fra et bilde</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Sammenlign</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Opptil fire varer side om side</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Ser etter oppdateringer…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Alt er oppdatert</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Laster ned LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Kontrollerer nedlastingen…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Installerer LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Kunne ikke se etter oppdateringer</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Kunne ikke laste ned oppdateringen</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Klar til å installeres</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Installer oppdateringen</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 er klar til å installeres</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 er den nyeste versjonen.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET lukkes, og den nye versjonen tar over.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Lastet ned. Start på nytt for å fullføre, ellers installeres den neste gang du avslutter.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Dra LOOMSTREET til Programmer i vinduet som nettopp åpnet seg, og velg Erstatt. Åpne så LOOMSTREET igjen.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET kunne ikke erstatte seg selv på denne datamaskinen. Installer den nye versjonen fra diskbildet i stedet. Det tar noen sekunder.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Versjonen du har, støttes ikke lenger.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Oppdateringen er lastet ned. Start LOOMSTREET på nytt for å fullføre, ellers installeres den neste gang du avslutter.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Kunne ikke se etter oppdateringer. Sjekk tilkoblingen og prøv igjen.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Nedlastingen mislyktes (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Nedlastingen var ufullstendig eller ble endret underveis. Prøv igjen.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Den nedlastede filen kunne ikke leses.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Nedlastingen er ikke signert av LOOMSTREET, så den ble ikke åpnet.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Last ned og installer</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Start på nytt og oppdater</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Åpne diskbildet</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Det ser ut til at du er frakoblet.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira brukte for lang tid på å svare.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Du sender meldinger for raskt. Vent et øyeblikk først.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Denne meldingen kunne ikke sendes slik den er skrevet.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET har problemer akkurat nå.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Fikk ikke kontakt med LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Velg størrelser for %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Utsolgt i mellomtiden og ikke lagt til: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Kunne ikke åpne kassen. Sjekk tilkoblingen og prøv igjen.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Høyden eller vekten ser ikke riktig ut. Sjekk tallene og enhetene.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Et av målene ser ikke riktig ut. Sjekk tallet, eller la det stå tomt.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Løs</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Ettersittende</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Hjelp meg å style denne: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Denne meldingen er ikke bekreftet. Du kan prøve igjen.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Samtalen er oppdatert</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira svarer</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira svarer. Du kan sende disse om et øyeblikk.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Temaer lagres på denne datamaskinen. Mira husker det dere har snakket om.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Hjelp meg å finne noe</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Style meg fra garderoben min</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Hva skal jeg ha på meg i kveld?</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET får ikke se hvor du er. Skriv inn byen din i stedet.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Posisjonen din ble ikke funnet. Skriv inn byen din i stedet.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Den byen er ukjent. Prøv en større i nærheten.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira kan ikke ta telefonen akkurat nå. Prøv igjen om et øyeblikk.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira er i en annen samtale. Prøv igjen om et minutt.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Det hakket litt på linjen. Kan du si det igjen?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Forbindelsen ble brutt. Ring igjen for å snakke videre.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Mikrofontilgangen er av. Slå den på i Systeminnstillinger › Personvern og sikkerhet › Mikrofon, og ring igjen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Kunne ikke starte mikrofonen. Sjekk at en er koblet til, og ring igjen.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Demp mikrofonen under en samtale</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Lagt i handlekurven</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Lagt i handlekurven: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Kunne ikke legge den til. Prøv fra varesiden.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Tar deg dit…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Åpner %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemets standard</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ikke tilkoblet</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Yttertøy</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Overdeler</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Underdeler</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Kjoler</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Sko</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Småting</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Mildt</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Delvis skyet</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Overskyet</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Tåke</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Yr</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Regn</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Snø</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Byger</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Torden</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Denne filen finnes ikke lenger.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Denne filen kunne ikke leses.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Denne filen er tom.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Denne filen er større enn 10 MB. Velg en mindre.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Bare bilder og PDF-filer kan sendes.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Denne meldingen er kanskje ikke kommet frem.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Skjulte</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>På vei</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Leverte</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Skriv til kundeservice</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Samtale med kundeservice</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
</TS>
