<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Du er her</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Åbn hele siden</translation>
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
        <translation>Enter sender, Skift+Enter begynder en ny linje</translation>
    </message>
    <message>
        <source>Send</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Send</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Prøv igen</translation>
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
        <translation>Tilbage til året</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senere</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Foldet ud</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Foldet sammen</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Gå til det nyeste</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln ny besked</numerusform>
            <numerusform>%Ln nye beskeder</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Du er vist offline. Tjek din forbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Luk</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Skjul adgangskoden</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Vis adgangskoden</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, før %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Udsolgt</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Arbejder</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Fjern fra ønskelisten</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Føj til ønskelisten</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Forrige</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, udsolgt</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, anbefalet til dig</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Bedømt til %L1 af 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Bedømt til %L1 af 5</translation>
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
        <translation>Fortryd</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Din konto</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Log ud</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Din stil, altid husket</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Alt her kan ses og købes uden konto. Med en konto ved butikken, hvor dine pakker er, og hvad du venter på.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Log ind</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Opret konto</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Alle ordrer samlet</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Hvor hver pakke er, og returneringer uden at lede efter kvitteringen</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Besked, når det gælder</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Din størrelse er tilbage, eller prisen er faldet</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Medlemskab og kuponer</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Point, niveauer og hvad de giver dig</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>En kasse, der kender dig</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Din adresse er der allerede</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Kundeservice</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Ordrer, returneringer og størrelser</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Ordrer</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>På vej og tidligere købt</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Spor en pakke</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Med pakke- eller ordrenummer</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Returneringer</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Send noget tilbage</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Til dig</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Ønskeliste</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Intet gemt endnu</translation>
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
        <translation>Alarmer</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Tilbage på lager og lavere priser</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Medlemskab</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Dit niveau og dine point</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kuponer</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Til brug ved kassen</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Uden konto</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Navn, fødselsdag og nyhedsbreve</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privatliv</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Hvad butikken får at vide om dig</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Gemt på denne computer</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Slet konto…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Din nøglering svarer ikke</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Den opbevarer dit login sikkert, og uden den kan ingen logge ind. Lås den op, og prøv så igen.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Tilbage på lager</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Prisfald</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>På lager igen</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Nu billigere</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1, da du spurgte</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Stop denne alarm</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln alarm</numerusform>
            <numerusform>%Ln alarmer</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Vi mailer til %1, når en vare er tilbage eller falder i pris.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Ingen alarmer endnu</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Er en vare udsolgt i din størrelse, så tryk på ”Giv besked, når den er tilbage”. På alle andre: ”Giv besked ved prisfald”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Nyheder</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Log ind for at se dine alarmer</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Vi siger til, når en vare er tilbage i din størrelse eller koster mindre.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Vi mailer dig ikke om den.</numerusform>
            <numerusform>Vi mailer dig ikke om dem.</numerusform>
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
        <translation>Find en designer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Ryd</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Bogstaver</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Andre designere</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Designere med %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Ingen designere matcher ”%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Tjek stavningen, eller se dem alle.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Vis alle designere</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Her er intet endnu</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Der kommer nye varer hver uge.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Udforsk</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln anmeldelse</numerusform>
            <numerusform>%Ln anmeldelser</numerusform>
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
        <translation>Forudbestilling</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Oftest valgt: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Hjælp mig med at style den</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Sammenlign</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Ved siden af varer, du har gemt eller set</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>GRATIS fragt i hele verden</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Ved kurve fra %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Godt at vide</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Importafgifter inkluderet</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Fragt beregnes ved kassen</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Vi mailer dig, når den er tilbage</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Giv besked, når den er tilbage</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Tilføjet</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Læg i kurv</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Tryk for at fortryde</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Åbner kassen…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Køb nu</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Opkald med %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Åbn i et vindue</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Afslut opkaldet</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Vis opkaldet</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Ring til %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Ring igen</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofonen er tændt</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofonen er slået fra</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Ringer op…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Tænker</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Taler</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Mikrofon slået fra</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Lytter</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Opkaldet er slut</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Slå mikrofonen til</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Slå mikrofonen fra</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Rabatkode</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Kurven kunne ikke indlæses</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Dine varer er i sikkerhed. Tjek din forbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Din kurv er tom</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Det, du tilføjer, vises her.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Shop videre</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1 blev taget ud.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Din tidligere kurv er udløbet. Der lå %Ln vare i den.</numerusform>
            <numerusform>Din tidligere kurv er udløbet. Der lå %Ln varer i den.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Læg tilbage</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Antal af %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Fjern fra kurven</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Luk</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Kurv</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Kurv</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Vis som sidepanel</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Subtotal</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabat</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>I alt</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Importafgifter inkluderet · Fragt beregnes ved kassen</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Til kassen</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Gør betalingen færdig i kassevinduet. Din kurv bliver, som den er.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Ikke tilgængelig</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Kollektion</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln nyhed de seneste 30 dage</numerusform>
            <numerusform>%Ln nyheder de seneste 30 dage</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Kollektionen er ikke tilgængelig</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Den har måske fået nyt navn eller sælges ikke her: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Ingen varer matcher filtrene</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Fjern et filter for at se flere.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Gør looket komplet</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Varer, der passer til</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Andre kunne også lide</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Blandt dem, der så på denne vare</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Du vil måske også kunne lide</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Tilføj varer til sammenligning</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Tilføj en vare</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Fra din ønskeliste og det, du har set</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Gem varer, eller se på dem, og tilføj dem her.</translation>
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
        <translation>Sælges ikke i dit land.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>ikke angivet</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Størrelser: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Tilbage til den første</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Hvad andre har på</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Se dig omkring</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Følger</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Nyt fra dine designere</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Se, hvad der er nyt</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Garderobe</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Hvad skal jeg tage på i dag?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Åbn garderoben</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Dine ordrer og alarmer</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Dit medlemskab</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Se, hvad det giver</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Hvor er min pakke?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Ordre %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Se ordren</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Prisfald</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Dine varer koster mindre nu</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Gem det, du elsker</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln vare gemt</numerusform>
            <numerusform>%Ln varer gemt</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Se ønskelisten</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Slet din konto?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Din profil, dine alarmer, dit medlemskab og listen over dine ordrer slettes for altid. Ordrer på vej når stadig frem. Dette kan ikke fortrydes.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Skriv din e-mailadresse for at bekræfte</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Slet konto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Kollektioner</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Ryd alle filtre</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Find i %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Intet med det navn</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Vis færre</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Vis %Ln</numerusform>
            <numerusform>Vis alle %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Op til</translation>
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
        <translation>Luk filtre</translation>
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
        <translation>Vælg to til fire varer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vælg</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Nyeste først</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Pris: lav til høj</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Pris: høj til lav</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Du har set alt: %Ln</numerusform>
            <numerusform>Du har set alle %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Kollektion: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Åbn %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Vælg størrelse</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Anbefalet til dig: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>I din kurv</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Udskift</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Udelad</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 af %Ln vare</numerusform>
            <numerusform>%L1 af %Ln varer</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>I stedet for %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Intet lignende lige nu.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Miras valg</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Dit look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Vælg størrelser, udskift det, du synes mindre om, og udelad det, du har i forvejen.</translation>
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
        <translation>Dine mål</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira finder dine størrelser ud fra dem. De kommer med i jeres samtale, og en kopi bliver på denne computer, til du logger ud.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Enhed</translation>
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
        <translation>Højde (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>fod</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Vægt (%1)</translation>
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
        <translation>Bryst (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Talje (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Hofte (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Lad felterne stå tomme, hvis du ikke kender målene.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Foretrukken pasform</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Send til Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Slet fra denne computer</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Byg et look omkring den</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Vælg størrelse, og læg i kurv</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Skriv til %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look omkring %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Mine varer · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Style med mine varer</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Vejr</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mere</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Se looket: %Ln vare i din størrelse</numerusform>
            <numerusform>Se looket: %Ln varer, alle i din størrelse</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nyt emne</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Emner…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Opdater</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Style med mine varer…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Mine mål…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Vejr…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Vis ved siden af indholdet</translation>
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
        <translation>Omdøb</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Emnets navn</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Slet ”%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behold</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Emner</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Dig</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Angiv mine mål</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 bruger disse først og tilføjer kun noget nyt, hvor det mangler.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Intet at style med endnu</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Varer i din kurv og på din ønskeliste vises her.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln valgt, der kan ikke være flere</numerusform>
            <numerusform>%Ln valgt, der kan ikke være flere</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>I din kurv</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>På din ønskeliste</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Hvor er du? Så passer looket til dagen.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Style mig efter vejret</translation>
    </message>
    <message>
        <source>City</source>
        <translation>By</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Brug min placering</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Hvad klæder du dig på til?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Fortæl %1 om anledningen, en favorit eller et budget, så sætter hun et look sammen.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Log ind for at se det, der vedrører dine ordrer og alarmer.</translation>
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
        <translation>Notifikationer</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Log ind for at se dine notifikationer</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Intet nyt</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Her hører du om ordrer på vej, varer, der er tilbage, og lavere priser.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Det, der vedrører dine ordrer og de varer, du følger, vises her.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Ulæst</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Markér alle som læst</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Indstil notifikationer</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Ventes %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
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
        <translation>Returneringer og tilbagebetalinger</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Ordren er ikke her</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Din nye ordre vises her om få minutter.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Den hører måske til en anden konto.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Log ind for at se ordren</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>En pakke kan følges med sit nummer uden konto.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Antal %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skjult</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Vis ordren igen</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Skjul ordren</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Hvilke ordrer</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>På vej</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Leveret</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Alle dine ordrer er skjult</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Intet på vej</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Intet leveret endnu</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Ingen returneringer</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Nogle af dem er skjult.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Vis skjulte ordrer</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Alle ordrer</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Din ordre er på vej til denne side</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Ingen ordrer endnu</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Her vises det, du bestiller, og hvor det er på vejen til dig.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Log ind for at se dine ordrer</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Hvor de er, hvad der er i dem, og hvordan du sender noget tilbage.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Skjult blandt dine ordrer på denne computer.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Trin %L1 af %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Leveringsadresse</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Start en returnering</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Pakke %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Ingen kender nummeret endnu</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Der kan gå en dag, før fragtfirmaet kender en ny pakke.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Åbn fragtfirmaets side</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Fragtfirmaet har ikke fortalt noget om den endnu.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Pakkens rejse</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Midlertidigt utilgængelig</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Funktionen er sat på pause for nu. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Fjern fra listen</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Varen er ikke tilgængelig</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Den er måske udsolgt for altid eller sælges ikke her: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Vi mailer dig, når den koster mindre</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Giv besked ved prisfald</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln vare koster mindre, end da du så den</numerusform>
            <numerusform>%Ln varer koster mindre, end da du så dem</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Intet at holde øje med endnu</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Ingen prisfald lige nu</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Gem en vare, eller se på den, så ser du her, når den koster mindre.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Dine gemte og sete varer koster det samme, som da du så dem, eller blev set i en anden valuta.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Billeder</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Billede %L1 af %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, billede %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Se alle</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Ikke interesseret</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Efter %Ln dag: %1</numerusform>
            <numerusform>Efter %Ln dage: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Butikken svarede: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Anmeldelser</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Flere anmeldelser</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beskrivelse</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Det særlige</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Spørgsmål og svar</translation>
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
        <translation>Vælg en dato</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Adressen, du logger ind med</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Gem</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Kassér ændringer</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gemt</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Hos os siden %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Nyhedsbreve</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>På e-mail</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Nye varer og tilbud til %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>På sms</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Kræver dit telefonnummer ovenfor</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Log ind for at se din profil</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Dit navn, dit telefonnummer og det, vi må sende dig.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Opdag</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Se dig lidt omkring, så finder du her, hvad der passer til.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Senest set</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Ryd alt</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Ingen historik endnu</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>De varer, du ser på, samles her, så du kan finde tilbage til dem.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Log ind, så mailer vi dig, når den er tilbage.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Mailen går til %1. Tryk igen, hvis du ikke længere vil have den.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Mailen går til %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Forstør billede %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln resultat for ”%1”</numerusform>
            <numerusform>%Ln resultater for ”%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Hvad leder du efter?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Ingen resultater for ”%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Tjek stavningen, prøv et bredere ord, eller gå på opdagelse i Nyheder.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Intet matcher filtrene</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Fjern et filter eller to for at se mere af ”%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Log ud?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Din kurv og ønskeliste bliver på denne computer. Ordrer og medlemskab er der igen, når du logger ind på ny.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Størrelsesguide</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Enhed for størrelser</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sortér: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Værktøjer</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Der er ingen værktøjer lige nu.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Pakke- eller ordrenummer</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Det står i mailen om forsendelsen.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Vi kender ikke nummeret. Tjek det, eller prøv igen i morgen: Der kan gå en dag, før en ny pakke er kendt.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spor</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Siden er ikke tilgængelig</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Den er måske flyttet eller hører til en anden version.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Tryk på hjertet ved en vare, så venter den på dig her. Vi holder også øje med prisen.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Din konto: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Leder efter din konto…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Ingen er logget ind</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Ordrer, alarmer og medlemskab kræver en konto. Det gør det ikke at kigge og købe.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Udseende</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farver</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Som skrivebordet</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Følger skrivebordet mellem lys og mørk</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Lys</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Mørk</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Skrivebordets vinduesramme</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>En titellinje over fanerne, som andre vinduer har</translation>
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
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Tekstning af opkaldet</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Sig, hvad du leder efter, eller hvad det er til.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Annuller opkaldet</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Fortsæt i chatten for også at skrive</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Opkald med %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Opkaldets varighed: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Vis i chatten</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Gør mindre</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Luk, og fortsæt i chatten</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Afslut opkaldet, og luk</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Kun billedet</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Gør større</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Vis opkaldet med %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Opkald med %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Åbn som hel side</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Følg den når som helst under Ordrer.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Genindlæs siden</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Sikker betaling hos Shopify  ·  Din kurv bliver, som den er</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Et link på siden fører ud af kassen, til %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Åbn i browser</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Kassen kan ikke vises her</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Fortsæt i browser</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET er ikke sat op</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Kør scripts/sync-secrets.sh i projektmappen, og byg så igen.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Historik</translation>
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
        <translation>Butikkens sprog</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Åbn varer ved siden af gitteret</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>I brede vinduer vises en vare ved siden af det sted, den blev fundet</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Mål i</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimeter og kilo</translation>
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
        <translation>Side uden titel</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Sæt diasshow på pause</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Afspil diasshow</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mellemrum</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom ud</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom ind</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Billedet kunne ikke indlæses</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Land og sprog: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Land og sprog</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Søg efter sprog</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Søg efter lande og valutaer</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Lande</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Intet sprog matcher ”%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Intet land matcher ”%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åbn</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>I vinduet</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Et banner øverst i nogle sekunder.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>På skrivebordet</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Der, hvor dit skrivebord viser notifikationer fra programmer, også når intet vindue er åbent.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Med lyd</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Antal på programikonet</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Hvor meget du ikke har læst.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Vis et eksempel</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Om hvad</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Anbefales ikke længere på denne computer.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Sidepanel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Åbn i ny fane</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Luk sidepanelet</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Sidepanelets bredde</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Hjælp butikken med at vælge, hvad der vises</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Fortæller, hvilke sider og varer der bliver set, lagt i kurven og købt, og hvornår programmet lukkede uventet, uden dit navn. Er det slået fra, sendes kun det nødvendige.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>I begge tilfælde</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Nødvendigt er det, du beder om</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>De sider, du åbner, dine søgninger, din kurv og dine ordrer skal nå frem til butikken.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Det, du gemmer, bliver på denne computer</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Din ønskeliste, det, du har set, og det, du har søgt efter, indtil du rydder det.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Dit login ligger i nøgleringen</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Er der ingen, ligger det i en fil, som kun du kan læse. Det udløber efter 60 dage, og når du logger ud.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Skærmbillede gemt</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Skærmbilledet kunne ikke gemmes</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Tjek, at der er plads i mappen Billeder.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Vis mappe</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Søg, eller indsæt et link</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Søg med billede…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Lyd</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Opdateringer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Afdelinger</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Fortsæt med %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Logger dig ind…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 åbner i din browser. Log ind der, så er du logget ind her.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopieret</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Kopiér adressen</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Til en browser, der ikke åbnede af sig selv</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Skete der ikke noget her?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Indsæt det link, din browser endte på</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Det begynder med ”wrenfieldstore://”. Nogle browsere viser det i adresselinjen.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Gør login færdigt</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Opret din konto</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Log ind på din konto</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Måder at logge ind på</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>E-mailkode</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Vi har sendt en kode til %1. Der kan gå et minut, før den er fremme.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Vi mailer dig først en kode for at være sikre på, at adressen er din.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Vi mailer dig en kode at logge ind med. Du behøver ingen adgangskode.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Bekræftelseskode</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Send igen om %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Send igen</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Send koden igen</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Adgangskode (mindst 6 tegn)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Navn (valgfrit)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Glemt adgangskoden? Log ind med en e-mailkode i stedet</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Mail mig en kode</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>eller fortsæt med</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Prøv</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Stop test af mikrofonen</translation>
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
        <translation>Den er i brug til opkaldet.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Sig noget: Bjælken følger din stemme. Intet forlader denne computer.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Viser, hvor højt du taler. Intet forlader denne computer.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Højttaler</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 slår mikrofonen fra, uanset hvor du er, så længe et opkald varer.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M slår mikrofonen fra i opkaldets vindue.</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Søg efter ”%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Seneste</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Set og gemt</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Ingen vare fundet. Enter søger i dem alle.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>vælg</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>luk</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Fjern ”%1” fra seneste søgninger</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Billede: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Åbner i browseren</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Skriv en besked</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Vedhæft et billede eller en PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Billeder og PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Slip et billede eller en PDF her</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Hvordan kan vi hjælpe?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Spørg om en ordre, en returnering eller din størrelse. Billeder hjælper også.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Hvor er min ordre?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Jeg vil gerne returnere noget</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Hvilken størrelse skal jeg tage?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Indlæser</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Luk %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Ny fane til højre</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Frigør fane</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Fastgør fane</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Flyt fane til nyt vindue</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Åbn lukket fane igen</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Luk fane</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Luk andre faner</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Fold sidebjælken ud</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Fold sidebjælken sammen</translation>
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
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Frem</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Fjernet fra: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Opdater</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Senest tjekket: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Ikke tjekket endnu</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Denne kopi af LOOMSTREET kan ikke opdatere sig selv.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET leder selv efter nye versioner.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET leder foreløbig ikke selv efter nye versioner.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Nye versioner får du der, hvor du har programmet fra. Du kan stadig tjekke her.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Ved start og hver sjette time. Det, der findes, hentes i baggrunden og installeres, når du afslutter; kan det ikke lade sig gøre, får du besked.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Butikken har sat det på pause. Du kan stadig tjekke her.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Søg efter opdateringer…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Hvad er nyt</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Spring denne version over</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimer</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gendan</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maksimer</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Luk vinduet</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Sikker forbindelse til %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Forbindelsen er ikke sikker</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Din konto er slettet.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Du blev logget ud, før din konto kunne slettes. Log ind igen for at slette den.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Fragt</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratis</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Moms og afgifter</translation>
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
        <translation>Bekræftet</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Pakket</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulleret</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>I gang</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Venter på fragtfirmaet</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Ude til levering</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Leveringsproblem</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Anmodet om returnering</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Returnering godkendt</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Tilbagebetalt</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Returnering afvist</translation>
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
            <numerusform>Brug højst %Ln tegn.</numerusform>
            <numerusform>Brug højst %Ln tegn.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Angiv et telefonnummer, for eksempel %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Angiv en dato, for eksempel %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Angiv en dato i fortiden.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Noget af det, du skrev, blev ikke godtaget. Tjek det, og prøv igen.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Angiv en gyldig e-mailadresse.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Koden er forkert eller udløbet. Bed om en ny.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>For mange forsøg. Vent et minut, og prøv igen.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-mail og adgangskode passer ikke sammen. Prøv igen, eller log ind med en e-mailkode.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Denne måde at logge ind på findes ikke endnu.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Kontoen har ingen e-mailadresse, vi kan bruge. Prøv en anden måde.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Login blev annulleret.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Login mislykkedes. Prøv igen.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Angiv kodens seks cifre.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Vælg en adgangskode på mindst 6 tegn.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Angiv din adgangskode. Den har mindst 6 tegn.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Det er ikke det link, dit login endte på. Det begynder med ”wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREETs hjælpecenter</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Aftaler og vilkår</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nyt vindue</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Fastgør eller frigør fane</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Flyt fane tilbage</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Flyt fane frem</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Åbn varen i sidepanelet som hel side</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Åbn varen i sidepanelet i ny fane</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Tag et skærmbillede</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Fuld skærm</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Gå til afdelingens forside</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Næste fane</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Forrige fane</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Udvalgt</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Nyeste</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Pris: lav til høj</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Pris: høj til lav</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Bestsellere</translation>
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
        <translation>Tasker</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Accessories</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Fra %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Op til %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nyhed</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Kun én tilbage</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Kun %Ln tilbage</numerusform>
            <numerusform>Kun %Ln tilbage</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Bedste match</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Denne vare kan ikke returneres</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Tjek størrelse og farve, før du bestiller</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Lavet til dig</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Kan kun returneres ved fejl</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Laves på bestilling, så regn med mere tid</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Inden for 30 dage, ubrugt, med alt tilbehør</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Gem æske, dustbag og papirer</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Inden for 30 dage, uden brugsspor på sålerne, i æsken</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Prøv dem indendørs først</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Inden for 30 dage, ubrugt, med mærker på</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Vælg først: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln vare i din kurv</numerusform>
            <numerusform>%Ln varer i din kurv</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Koden kunne ikke bruges. Prøv igen.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>”%1” gælder ikke for varerne i din kurv.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Du har opnået GRATIS fragt i hele verden</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Køb for %1 mere, og få GRATIS fragt i hele verden</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Ordren er afgivet. Den vises under Ordrer om få minutter.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Ordre %1 er afgivet. Den vises under Ordrer om få minutter.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln vare  ·  bekræftelse sendt til din e-mail</numerusform>
            <numerusform>%Ln varer  ·  bekræftelse sendt til din e-mail</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Siden var for længe om at indlæse.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Siden fører ud af kassen.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Siden holdt op med at virke.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Kassen kunne ikke åbnes. Prøv igen.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>%1 billigere nu</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>jobbet</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>daten</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>festen</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>brylluppet</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>ferien</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>rejsen</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>hverdagen</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>weekenden</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>skolen</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>jobsamtalen</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>dimissionen</translation>
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
        <translation>en aften i byen</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>brunchen</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>træningen</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>festlige lejligheder</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Lige landet</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Ud fra det, du elsker</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Nyt i denne uge</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Nyt i denne uge</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Håndplukket</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Nyt i denne uge · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Ud fra det, du elsker</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Elsket af kunder som dig</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Ud fra det, du har kigget på</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Trender nu</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Matcher din søgning: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Fordi du elsker %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Til %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Stiltip: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>yndige looks</translation>
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
        <translation>elegante looks</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalisme</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantiske looks</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>streetstyle</translation>
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
        <translation>preppy looks</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>fransk chic</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>edgy looks</translation>
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
        <translation>festivalmode</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>klassiske looks</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sporty looks</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>chikke looks</translation>
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
        <translation>koreansk mode</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japansk mode</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>nykinesisk mode</translation>
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
        <translation>sexede looks</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>søde looks</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>cool looks</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>feminine looks</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgyne looks</translation>
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
        <translation>formelle looks</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>glamour</translation>
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
        <translation>resortwear</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>Start</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Udsalg</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Indbakke</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>For mange forsøg. Vent et øjeblik, og prøv igen.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Din session er udløbet. Log ind igen.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Angiv din e-mailadresse.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Nogle af oplysningerne ser ikke rigtige ud. Tjek dem, og prøv igen.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET har problemer lige nu. Prøv igen om lidt.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Det gik ikke. Prøv igen.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Svaret var ikke som ventet. Prøv igen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET kunne ikke nås. Prøv igen.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Appen mangler sin konfiguration.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Forespørgslen tog for lang tid. Prøv igen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Der venter %Ln notifikation mere i din indbakke.</numerusform>
            <numerusform>Der venter %Ln notifikationer mere i din indbakke.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Systembeskeder</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Nyt om konto og service</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Nyt om ordrer</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Ordre bekræftet, sendt og leveret</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Tilbagebetalinger og returneringer</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Udførte tilbagebetalinger og nyt om returneringer</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Svar fra kundeservice</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Når kundeservice svarer dig</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Varer, du har en alarm på, er på lager igen</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Gemte eller sete varer bliver billigere</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktivitet i Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Likes, kommentarer, nye følgere og beskeder</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Nyt niveau, point og nye kuponer</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Kampagner og events</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Udsalg, nye drops og events i butikken</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Sendte en vedhæftning</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Ordren er afgivet</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Din ordre er bekræftet. Den vises under Ordrer om få minutter.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Ordre %1 er bekræftet. Den vises under Ordrer om få minutter.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET kunne ikke opdatere sig selv</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Klik på Opdater øverst i vinduet for at installere den nye version fra diskbilledet.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Eksempel på notifikation</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Nyt om ordrer og svar fra kundeservice vises her.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Garderobe</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Alt, hvad du ejer, samlet ét sted</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Outfitstudie</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Sæt varer sammen, og se dem som et hele</translation>
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
        <translation>De outfits, du har gemt</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Outfitidéer</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nye måder at bruge din garderobe på</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Størrelsesråd</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Dine mål og den størrelse, der passer til dem</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Søg med billede</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Find en vare ud fra et billede</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Sammenlign</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Op til fire varer side om side</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Søger efter opdateringer…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Du har den nyeste version</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Henter LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Tjekker det hentede…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Installerer LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Der kunne ikke søges efter opdateringer</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Opdateringen kunne ikke hentes</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Klar til installation</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Installer opdateringen</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 er klar til installation</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 er den nyeste version.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET lukker, og den nye version tager over.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Hentet. Genstart for at fuldføre opdateringen, ellers installeres den, næste gang du afslutter.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Træk LOOMSTREET til Programmer i vinduet, der lige åbnede, og vælg Erstat. Åbn så LOOMSTREET igen.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET kunne ikke erstatte sig selv på denne computer. Installer den nye version fra diskbilledet i stedet. Det tager få sekunder.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Den version, du har, understøttes ikke længere.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Opdateringen er hentet. Genstart LOOMSTREET for at fuldføre den, ellers installeres den, næste gang du afslutter.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Der kunne ikke søges efter opdateringer. Tjek din forbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Hentningen mislykkedes (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Det hentede var ufuldstændigt eller ændret undervejs. Prøv igen.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Den hentede fil kunne ikke læses.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Det hentede er ikke signeret af LOOMSTREET, så det blev ikke åbnet.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Hent og installer</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Genstart og opdater</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Åbn diskbillede</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Du er vist offline.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira var for længe om at svare.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Du sender beskeder for hurtigt. Vent et øjeblik.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Beskeden kunne ikke sendes, som den er skrevet.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET har problemer lige nu.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET kunne ikke nås.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Vælg størrelser til %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Udsolgt i mellemtiden og ikke tilføjet: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Kassen kunne ikke åbnes. Tjek din forbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Højden eller vægten ser ikke rigtig ud. Tjek tallene og enhederne.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Et af målene ser ikke rigtigt ud. Tjek tallet, eller lad det stå tomt.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Løs</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Tætsiddende</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Hjælp mig med at style: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Beskeden er ikke bekræftet. Du kan prøve igen.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Samtalen er opdateret</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira svarer</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira svarer. Du kan sende disse om et øjeblik.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Emner gemmes på denne computer. Mira husker jeres fælles samtale.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Hjælp mig med at finde noget</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Style mig fra min garderobe</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Hvad skal jeg tage på i aften</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET må ikke se, hvor du er. Skriv din by i stedet.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Din placering kunne ikke findes. Skriv din by i stedet.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Byen er ukendt. Prøv en større i nærheden.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira kan ikke tage telefonen lige nu. Prøv igen om et øjeblik.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira er i et andet opkald. Prøv igen om et minut.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Linjen hakkede. Vil du sige det igen?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Forbindelsen røg. Ring igen for at tale videre.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Adgang til mikrofonen er slået fra. Slå den til i Systemindstillinger › Privatliv og sikkerhed › Mikrofon, og ring så igen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Mikrofonen kunne ikke startes. Tjek, at der er tilsluttet en, og ring så igen.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Slå mikrofonen fra under et opkald</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Lagt i din kurv</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>%1 er lagt i din kurv</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Den kunne ikke lægges i kurven. Prøv fra produktsiden.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Jeg tager dig derhen…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Åbner %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemets standard</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ikke tilsluttet</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Overtøj</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Overdele</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Underdele</translation>
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
        <translation>Ekstra</translation>
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
        <translation>Delvist skyet</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Overskyet</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Tåge</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Støvregn</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Regn</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Sne</translation>
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
        <translation>Filen er der ikke længere.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Filen kunne ikke læses.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Filen er tom.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Filen er større end 10 MB. Vælg en mindre.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Kun billeder og PDF-filer kan sendes.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Beskeden er måske ikke nået frem.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Skjulte</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>På vej</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Leverede</translation>
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
        <translation>”%1”</translation>
    </message>
</context>
</TS>
