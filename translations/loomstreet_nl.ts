<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Je bent hier</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Hele pagina openen</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Wordt verzonden…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Minder tonen</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alles tonen</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter verstuurt, Shift+Enter begint een nieuwe regel</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Versturen</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 verwijderen</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Eerder</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Terug naar het jaar</translation>
    </message>
    <message>
        <source>Later</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Later</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Uitgeklapt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Ingeklapt</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Naar het nieuwste</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln nieuw bericht</numerusform>
            <numerusform>%Ln nieuwe berichten</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Je lijkt offline te zijn. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Wachtwoord verbergen</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Wachtwoord tonen</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1, was %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Uitverkocht</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Bezig</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Van verlanglijst verwijderen</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Op verlanglijst zetten</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, uitverkocht</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, aanbevolen voor jou</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Beoordeeld met %L1 van 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Beoordeeld met %L1 van 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Minder</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Meer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Je account</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Uitloggen</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Je garderobe, altijd bewaard</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Alles hier kun je zonder account bekijken en kopen. Met een account weet de winkel waar je pakketten zijn en waarop je wacht.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Inloggen</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Account aanmaken</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Al je bestellingen bij elkaar</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Waar elk pakket is, en retourneren zonder naar de bon te zoeken</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Bericht wanneer het telt</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Je maat is er weer of de prijs is gedaald</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Lidmaatschap en kortingsbonnen</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Punten, niveaus en wat je ermee krijgt</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Sneller afrekenen</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Je adres staat er al</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Klantenservice</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Bestellingen, retouren en maten</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Bestellingen</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Onderweg en eerder gekocht</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Pakket volgen</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Met het nummer van pakket of bestelling</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Retouren</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Iets terugsturen</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Voor jou</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Verlanglijst</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Nog niets bewaard</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln item</numerusform>
            <numerusform>%Ln items</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Alerts</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Weer op voorraad en lagere prijzen</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Lidmaatschap</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Je niveau en punten</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kortingsbonnen</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Te gebruiken bij het afrekenen</translation>
    </message>
    <message>
        <source>Account</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Account</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Zonder account</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profiel</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Naam, verjaardag en nieuwsbrieven</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Privacy</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Wat de winkel over je te weten komt</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Bewaard op deze computer</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Account verwijderen…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Je sleutelbos reageert niet</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Die bewaart je login veilig; zonder kan niemand inloggen. Ontgrendel de sleutelbos en probeer het dan opnieuw.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Weer op voorraad</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Prijsdaling</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Weer op voorraad</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Nu lager</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 toen je het vroeg</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Deze alert stoppen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>
            <numerusform>%Ln alert</numerusform>
            <numerusform>%Ln alerts</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>We mailen je op %1 als een item er weer is of in prijs daalt.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Nog geen alerts</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Is een item uitverkocht in jouw maat, druk dan op “Mail me als het er weer is”. Bij alle andere op “Mail me bij een prijsdaling”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Nieuw binnen</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Log in om je alerts te zien</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>We laten het je weten als een item er weer is in jouw maat of minder kost.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>We mailen je hier niet meer over.</numerusform>
            <numerusform>We mailen je hier niet meer over.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln item</numerusform>
            <numerusform>%1, %Ln items</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Designers</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>
            <numerusform>%Ln designer</numerusform>
            <numerusform>%Ln designers</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Designer zoeken</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
    </message>
    <message>
        <source>Letters</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Letters</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Andere designers</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Designers met %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Geen designers voor “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Controleer de spelling of bekijk ze allemaal.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Alle designers tonen</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Hier is nog niets</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Elke week komen er nieuwe items bij.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Ontdekken</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>
            <numerusform>%Ln review</numerusform>
            <numerusform>%Ln reviews</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln verkocht</numerusform>
            <numerusform>%Ln verkocht</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Pre-order</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Meest gekozen: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Help me dit te stylen</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergelijken</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Naast items die je bewaarde of bekeek</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>GRATIS verzending wereldwijd</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Bij een winkelmand vanaf %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Goed om te weten</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Inclusief invoerrechten</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Verzendkosten zie je bij het afrekenen</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>We mailen je als het er weer is</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Mail me als het er weer is</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Toegevoegd</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>In winkelmand</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Druk om in te trekken</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Afrekenen wordt geopend…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Nu kopen</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Gesprek met %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>In een venster openen</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Beëindigen</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Gesprek beëindigen</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Gesprek tonen</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>%1 bellen</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Opnieuw bellen</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Microfoon staat aan</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Microfoon is gedempt</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Belt…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Denkt na</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Spreekt</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Gedempt</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Luistert</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Gesprek beëindigd</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Dempen opheffen</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Kortingscode</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Je winkelmand kon niet worden geladen</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Je items zijn veilig. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Je winkelmand is leeg</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Wat je toevoegt, verschijnt hier.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Verder winkelen</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1 is eruit gehaald.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Je eerdere winkelmand is verlopen. Er zat %Ln item in.</numerusform>
            <numerusform>Je eerdere winkelmand is verlopen. Er zaten %Ln items in.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Terugzetten</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Aantal van %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Uit winkelmand verwijderen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Winkelmand</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Winkelmand</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Als zijpaneel tonen</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Subtotaal</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Korting</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Totaal</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Inclusief invoerrechten · Verzendkosten zie je bij het afrekenen</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Afrekenen</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Rond je betaling af in het afrekenvenster. Je winkelmand blijft zoals die is.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Niet beschikbaar</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Collectie</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln nieuw in de afgelopen 30 dagen</numerusform>
            <numerusform>%Ln nieuw in de afgelopen 30 dagen</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Deze collectie is niet beschikbaar</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Misschien heeft de collectie nu een andere naam of is die niet te koop in %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Geen items voor deze filters</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Verwijder een filter om meer te zien.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Maak de look compleet</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Items om erbij te dragen</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Ook bewonderd</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Door wie dit item bekeek</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Misschien ook iets voor jou</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Items toevoegen om te vergelijken</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Item toevoegen</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Van je verlanglijst en wat je bekeek</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Bewaar of bekijk items en voeg ze hier toe.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Vergelijken met %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Maten</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Materiaal</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Uit de vergelijking verwijderen</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Niet beschikbaar in jouw land.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>niet vermeld</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Maten van %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Terug naar de eerste</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Wat anderen dragen</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Rondkijken</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Gevolgd</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Nieuws van je designers</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Bekijk wat er nieuw is</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Kledingkast</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Wat trek ik vandaag aan?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Kledingkast openen</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Je bestellingen en alerts</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Je lidmaatschap</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Bekijk je voordelen</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Waar is mijn pakket?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Bestelling %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Bestelling bekijken</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Prijsdalingen</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Jouw items kosten nu minder</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Bewaar waar je van houdt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln item bewaard</numerusform>
            <numerusform>%Ln items bewaard</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Verlanglijst bekijken</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Je account verwijderen?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Je profiel, alerts, lidmaatschap en de lijst van je bestellingen worden voorgoed verwijderd. Bestellingen die onderweg zijn, komen nog aan. Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Typ je e-mailadres ter bevestiging</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Account verwijderen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Collecties</translation>
    </message>
    <message>
        <source>Filters</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Filters</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Alle filters wissen</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Zoeken in %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Niets met die naam</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Minder tonen</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>%Ln tonen</numerusform>
            <numerusform>Alle %Ln tonen</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Vanaf</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Items tonen</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>%Ln item tonen</numerusform>
            <numerusform>%Ln items tonen</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Filters sluiten</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln gekozen, %L1 kunnen worden vergeleken</numerusform>
            <numerusform>%Ln gekozen, %L1 kunnen worden vergeleken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln gekozen</numerusform>
            <numerusform>%Ln gekozen</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Kies twee tot vier items</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecteren</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Nieuwste eerst</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Prijs: laag naar hoog</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Prijs: hoog naar laag</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Je hebt alles gezien: %Ln</numerusform>
            <numerusform>Je hebt ze alle %Ln gezien</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Collectie: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 openen</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Kies een maat</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Maat</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Aanbevolen voor jou: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>In je winkelmand</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Weglaten</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 van %Ln item</numerusform>
            <numerusform>%L1 van %Ln items</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>In plaats van %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Op dit moment niets vergelijkbaars.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira’s keuze</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Jouw look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Kies de maten, vervang wat je minder mooi vindt en laat weg wat je al hebt.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>inch</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Jouw maten</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira berekent er je kledingmaten mee. Ze komen in jullie gesprek te staan, en een kopie blijft op deze computer tot je uitlogt.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Eenheid</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperiaal</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Lengte (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>voet</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Gewicht (%1)</translation>
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
        <translation>Borst (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Taille (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Heup (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Laat deze leeg als je ze niet weet.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Favoriete pasvorm</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Naar Mira sturen</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Van deze computer verwijderen</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Er een look omheen maken</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Maat kiezen en in winkelmand</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Schrijf naar %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look rond %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Mijn items · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Stylen met mijn items</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Weer</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Bekijk de look: %Ln item, in jouw maat</numerusform>
            <numerusform>Bekijk de look: %Ln items, allemaal in jouw maat</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nieuw onderwerp</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Onderwerpen…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Stylen met mijn items…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Mijn maten…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Weer…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Naast de pagina tonen</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Suggesties</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Versturen: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Gesprek met %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Naam wijzigen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Naam van het onderwerp</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>“%1” verwijderen?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Onderwerpen</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Jij</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Mijn maten invoeren</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 gebruikt eerst deze en voegt alleen iets nieuws toe waar het ontbreekt.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Nog niets om mee te stylen</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Items in je winkelmand en op je verlanglijst verschijnen hier.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln gekozen, meer kan niet</numerusform>
            <numerusform>%Ln gekozen, meer kan niet</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>In je winkelmand</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Op je verlanglijst</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Waar ben je? Dan past de look bij de dag.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Style me voor het weer</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Instellen</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Mijn locatie gebruiken</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Waarvoor kleed je je?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Vertel %1 de gelegenheid, een favoriet item of een budget, en ze stelt een look samen.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Log in om te zien wat er speelt rond je bestellingen en alerts.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Tonen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Klantenservice</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Log in om je meldingen te zien</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Niets nieuws</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Hier lees je over bestellingen onderweg, items die er weer zijn en lagere prijzen.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Hier komt alles over je bestellingen en de items die je volgt.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Ongelezen</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Alles als gelezen markeren</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Meldingen instellen</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Verwacht: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Bestelling</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Besteld op %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Pakket</numerusform>
            <numerusform>Pakketten</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Items</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Retouren en terugbetalingen</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Deze bestelling is hier niet</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Je nieuwe bestelling verschijnt hier over een paar minuten.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Misschien hoort die bij een ander account.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Log in om deze bestelling te zien</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Met het nummer kun je een pakket ook zonder account volgen.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Aantal %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Verborgen</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Bestelling weer tonen</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Bestelling verbergen</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Welke bestellingen</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Onderweg</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Bezorgd</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Al je bestellingen zijn verborgen</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Niets onderweg</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Nog niets bezorgd</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Geen retouren</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Sommige zijn verborgen.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Verborgen bestellingen tonen</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Alle bestellingen</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Je bestelling is onderweg naar deze pagina</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Nog geen bestellingen</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Hier zie je je bestellingen en waar ze zijn op weg naar jou.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Log in om je bestellingen te zien</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Waar ze zijn, wat erin zit en hoe je iets terugstuurt.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Op deze computer verborgen uit je bestellingen.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Stap %L1 van %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Bezorgadres</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Retour aanmelden</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Pakket %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Dit nummer is nog niet bekend</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Het kan een dag duren voor de bezorger een nieuw pakket kent.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Pagina van de bezorger openen</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>De bezorger heeft er nog niets over laten weten.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>De reis van het pakket</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Tijdelijk niet beschikbaar</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Deze functie is even gepauzeerd. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Van de lijst verwijderen</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Dit item is niet beschikbaar</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Misschien is het definitief uitverkocht of niet te koop in %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>We mailen je als het minder kost</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Mail me bij een prijsdaling</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln item kost minder dan toen je het zag</numerusform>
            <numerusform>%Ln items kosten minder dan toen je ze zag</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Nog niets om in de gaten te houden</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Nu geen prijsdalingen</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Bewaar of bekijk een item en je ziet hier wanneer het minder kost.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Je bewaarde en bekeken items kosten nog evenveel als toen je ze zag, of je zag ze in een andere valuta.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Foto %L1 van %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, foto %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Alles bekijken</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Niet interessant</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Na %Ln dag: %1</numerusform>
            <numerusform>Na %Ln dagen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Antwoord van de winkel: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Reviews</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Meer reviews</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Highlights</translation>
    </message>
    <message>
        <source>Details</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Details</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Vragen en antwoorden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefoon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Verjaardag</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Kies een datum</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Het adres waarmee je inlogt</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Wijzigingen negeren</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Opgeslagen</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Bij ons sinds %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Nieuwsbrieven</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Per e-mail</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Nieuwe items en aanbiedingen, naar %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Per sms</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Vul hierboven je telefoonnummer in</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Log in om je profiel te zien</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Je naam, je telefoonnummer en wat we je mogen sturen.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Ontdekken</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Kijk een beetje rond en je vindt hier wat erbij past.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Laatst bekeken</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Alles wissen</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Nog geen geschiedenis</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>De items die je bekijkt staan hier bij elkaar, zodat je ze terugvindt.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Log in, dan mailen we je zodra het er weer is.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>De mail gaat naar %1. Druk nog een keer als je die niet meer wilt.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>De mail gaat naar %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Foto %L1 vergroten</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln resultaat voor “%1”</numerusform>
            <numerusform>%Ln resultaten voor “%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Wat zoek je?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Geen resultaten voor “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Controleer de spelling, probeer een ruimer woord of kijk bij Nieuw binnen.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Niets past bij deze filters</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Verwijder een filter of twee om meer van “%1” te zien</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Uitloggen?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Je winkelmand en verlanglijst blijven op deze computer. Bestellingen en lidmaatschap zie je weer als je opnieuw inlogt.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Maattabel</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Eenheid van de maten</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sorteren: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Tools</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Er zijn op dit moment geen tools.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Pakket- of bestelnummer</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Het staat in de mail over de verzending.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>We kennen dit nummer niet. Controleer het of probeer het morgen opnieuw: een nieuw pakket is soms pas na een dag bekend.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Volgen</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Deze pagina is niet beschikbaar</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Misschien is die verplaatst of hoort die bij een andere versie.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Druk op het hartje bij een item en het wacht hier op je. We houden ook de prijs in de gaten.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Je account: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Je account wordt gezocht…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Niemand is ingelogd</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Voor bestellingen, alerts en lidmaatschap heb je een account nodig. Om rond te kijken en te kopen niet.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Weergave</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Kleuren</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Zoals het bureaublad</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Wisselt met het bureaublad tussen licht en donker</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Donker</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Vensterrand van het bureaublad</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Een titelbalk boven de tabbladen, zoals bij andere vensters</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Beeld</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Ga naar</translation>
    </message>
    <message>
        <source>Help</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Help</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Ondertiteling van het gesprek</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Zeg wat je zoekt of waarvoor het is.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Gesprek annuleren</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Verder in de chat, om ook te schrijven</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Gesprek met %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Gespreksduur: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>In de chat tonen</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Klein maken</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Sluiten en verder in de chat</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Gesprek beëindigen en sluiten</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Alleen het beeld</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Groot maken</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Gesprek met %1 tonen</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Gesprek met %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Als hele pagina openen</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Altijd te volgen onder Bestellingen.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Pagina opnieuw laden</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Veilig afrekenen via Shopify  ·  Je winkelmand blijft zoals die is</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Een link op deze pagina leidt weg van het afrekenen, naar %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>In browser openen</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Afrekenen kan hier niet worden getoond</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Verder in browser</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET is niet ingesteld</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Voer scripts/sync-secrets.sh uit in de projectmap en bouw daarna opnieuw.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Land en valuta</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Taal van de winkel</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Items naast het raster openen</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>In brede vensters staat een item naast de plek waar je het vond</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Maten in</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimeters en kilo’s</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Inches en ponden (lb)</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Pagina zonder titel</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Diavoorstelling pauzeren</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Diavoorstelling afspelen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spatie</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Deze foto kon niet worden geladen</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Land en taal: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Land en taal</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Talen zoeken</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Landen en valuta’s zoeken</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Talen</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Landen</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Geen taal gevonden voor “%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Geen land gevonden voor “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>In het venster</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Een paar seconden een banner bovenaan.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Op het bureaublad</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Waar je bureaublad meldingen van programma’s toont, ook als er geen venster open is.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Met geluid</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Teller op het programmapictogram</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Hoeveel je nog niet hebt gelezen.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Voorbeeld tonen</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Waarover</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Wordt op deze computer niet meer aanbevolen.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Zijpaneel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>In nieuw tabblad openen</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Zijpaneel sluiten</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Breedte van het zijpaneel</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Help de winkel kiezen wat er te zien is</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Vertelt de winkel, zonder je naam, welke pagina’s en items worden bekeken, in de winkelmand gelegd en gekocht, en wanneer het programma onverwacht stopte. Staat dit uit, dan wordt alleen het noodzakelijke verstuurd.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>In beide gevallen</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Noodzakelijk is waar je om vraagt</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>De pagina’s die je opent, je zoekopdrachten, je winkelmand en je bestellingen moeten de winkel bereiken.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Wat je bewaart, blijft op deze computer</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Je verlanglijst, wat je bekeek en wat je zocht, tot je het wist.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Je login zit in de sleutelbos</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Is die er niet, dan in een bestand dat alleen jij kunt lezen. De login vervalt na 60 dagen en als je uitlogt.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Schermafbeelding opgeslagen</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>De schermafbeelding kon niet worden opgeslagen</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Controleer of er ruimte is in je map Afbeeldingen.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Map tonen</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Zoek of plak een link</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Zoeken met foto…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Geluid</translation>
    </message>
    <message>
        <source>Updates</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Onderdelen</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Doorgaan met %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Je wordt ingelogd…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 opent in je browser. Log daar in, dan ben je ook hier ingelogd.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Gekopieerd</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Adres kopiëren</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Voor een browser die niet vanzelf openging</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Gebeurde hier niets?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Plak de link waar je browser op uitkwam</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Die begint met “wrenfieldstore://”. Sommige browsers tonen hem in de adresbalk.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Inloggen afronden</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Maak je account aan</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Log in op je account</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Manieren om in te loggen</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>E-mailcode</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>We hebben een code naar %1 gestuurd. Het kan even duren voor die aankomt.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>We mailen je eerst een code, om zeker te weten dat het adres van jou is.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>We mailen je een code om in te loggen. Je hebt geen wachtwoord nodig.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Verificatiecode</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Opnieuw versturen over %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Opnieuw versturen</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Code opnieuw versturen</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Wachtwoord (6 of meer tekens)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Naam (optioneel)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Wachtwoord vergeten? Log in met een e-mailcode</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Mail me een code</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>of ga verder met</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfoon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Microfoontest stoppen</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Microfoon testen</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Die is in gebruik voor het gesprek.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Zeg iets: de balk volgt je stem. Niets verlaat deze computer.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Laat zien hoe luid je bent. Niets verlaat deze computer.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Luidspreker</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 dempt de microfoon waar je ook bent, zolang een gesprek duurt.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M dempt de microfoon in het venster van een gesprek.</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Zoeken naar “%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Recent</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Bekeken en bewaard</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Geen item gevonden. Enter doorzoekt ze allemaal.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>kiezen</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>sluiten</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>“%1” uit recente zoekopdrachten verwijderen</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Foto: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Opent in de browser</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Schrijf een bericht</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Foto of PDF toevoegen</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Foto’s en PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Zet hier een foto of PDF neer</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Hoe kunnen we helpen?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Vraag naar een bestelling, een retour of je maat. Foto’s helpen ook.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Waar is mijn bestelling?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Ik wil iets terugsturen</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Welke maat kan ik het best nemen?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 sluiten</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nieuw tabblad rechts</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Tabblad losmaken</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Tabblad vastzetten</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Tabblad naar nieuw venster</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Gesloten tabblad opnieuw openen</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Tabblad sluiten</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Andere tabbladen sluiten</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Zijbalk uitklappen</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Zijbalk inklappen</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Tabbladen</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nieuw tabblad</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vooruit</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Verwijderd uit: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Updaten</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Laatst gecontroleerd: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Nog niet gecontroleerd</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Deze kopie van LOOMSTREET kan zichzelf niet updaten.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET zoekt zelf naar nieuwe versies.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET zoekt voorlopig niet zelf naar nieuwe versies.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Nieuwe versies krijg je waar je het programma vandaan hebt. Je kunt hier wel controleren.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Bij het starten en elke zes uur. Wat er is, wordt op de achtergrond gedownload en bij het afsluiten geïnstalleerd; lukt dat niet, dan hoor je het.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>De winkel heeft dit gepauzeerd. Je kunt hier wel controleren.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Zoeken naar updates…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Wat is er nieuw</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Deze versie overslaan</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximaliseren</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Venster sluiten</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Veilige verbinding met %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Verbinding is niet veilig</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Je account is verwijderd.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Je werd uitgelogd voordat je account kon worden verwijderd. Log opnieuw in om het te verwijderen.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Verzending</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratis</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Belastingen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln pakket</numerusform>
            <numerusform>%Ln pakketten</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Bevestigd</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Ingepakt</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Geannuleerd</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>In behandeling</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Wacht op de bezorger</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Bezorger is onderweg</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Probleem bij bezorging</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Retour aangevraagd</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Retour goedgekeurd</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Terugbetaald</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Retour geweigerd</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 en nog %Ln</numerusform>
            <numerusform>%1 en nog %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Gebruik hoogstens %Ln teken.</numerusform>
            <numerusform>Gebruik hoogstens %Ln tekens.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Vul een telefoonnummer in, zoals %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Vul een datum in, zoals %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Vul een datum in het verleden in.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Iets wat je invulde is niet geaccepteerd. Controleer het en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Vul een geldig e-mailadres in.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Die code is onjuist of verlopen. Vraag een nieuwe aan.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Te veel pogingen. Wacht een minuut en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-mailadres en wachtwoord horen niet bij elkaar. Probeer het opnieuw of log in met een e-mailcode.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Deze manier van inloggen is nog niet beschikbaar.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Dat account heeft geen e-mailadres dat we kunnen gebruiken. Probeer een andere manier.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Inloggen is geannuleerd.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Inloggen is mislukt. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Vul de zes cijfers van de code in.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Kies een wachtwoord van 6 of meer tekens.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Vul je wachtwoord in. Het heeft 6 of meer tekens.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Dat is niet de link waar het inloggen op uitkwam. Die begint met “wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREET-helpcentrum</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Voorwaarden</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nieuw venster</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Tabblad vastzetten of losmaken</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Tabblad naar links</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Tabblad naar rechts</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Item in zijpaneel als hele pagina openen</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Item in zijpaneel in nieuw tabblad openen</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Schermafbeelding maken</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Volledig scherm</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Naar startpagina van het onderdeel</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Volgend tabblad</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Vorig tabblad</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Aanbevolen</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Nieuwste</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Prijs: laag naar hoog</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Prijs: hoog naar laag</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Bestsellers</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Dames</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Heren</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luxe</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Tassen</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Accessoires</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Vanaf %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Tot %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Nog maar één over</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Nog maar %Ln over</numerusform>
            <numerusform>Nog maar %Ln over</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Beste match</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Dit item kan niet worden geretourneerd</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Controleer maat en kleur voor je bestelt</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Voor jou gemaakt</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Alleen te retourneren bij een gebrek</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Op bestelling gemaakt, reken op meer tijd</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Binnen 30 dagen, ongedragen, met alles erbij</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Bewaar doos, stofzak en papieren</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Binnen 30 dagen, zolen zonder sporen, in de doos</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Pas ze eerst binnenshuis</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Binnen 30 dagen, ongedragen, met labels eraan</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Maak eerst een keuze: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln item in je winkelmand</numerusform>
            <numerusform>%Ln items in je winkelmand</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Die code kon niet worden toegepast. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1” geldt niet voor de items in je winkelmand.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Gelukt: GRATIS verzending wereldwijd voor jou</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Nog %1 tot GRATIS verzending wereldwijd</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Bestelling geplaatst. Je ziet die over een paar minuten onder Bestellingen.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Bestelling %1 geplaatst. Je ziet die over een paar minuten onder Bestellingen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln item  ·  bevestiging naar je e-mail gestuurd</numerusform>
            <numerusform>%Ln items  ·  bevestiging naar je e-mail gestuurd</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>De pagina deed er te lang over om te laden.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>De pagina leidt weg van het afrekenen.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>De pagina werkt niet meer.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Afrekenen kon niet worden gestart. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Nu %1 goedkoper</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>je werk</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>een date</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>feestjes</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>bruiloften</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>je vakantie</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>op reis</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>elke dag</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>het weekend</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>school</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>sollicitaties</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>je diploma-uitreiking</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>festivals</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>het strand</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>een avondje uit</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>een brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>de gym</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>formele gelegenheden</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Nieuw binnen</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Op basis van jouw smaak</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Nieuw deze week</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Nieuw deze week</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Met zorg gekozen</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Nieuw deze week · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Op basis van jouw smaak</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Geliefd bij shoppers zoals jij</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Op basis van wat je bekeek</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Nu trending</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Past bij je zoekopdracht: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Omdat je houdt van %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Voor %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Stijltip: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>lieve looks</translation>
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
        <translation>elegantie</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalisme</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantische looks</translation>
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
        <translation>Franse chic</translation>
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
        <translation>festivallooks</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>klassiekers</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportieve looks</translation>
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
        <translation>Koreaanse looks</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>Japanse looks</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>nieuw-Chinese looks</translation>
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
        <translation>sexy looks</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>schattige looks</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>coole looks</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>vrouwelijke looks</translation>
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
        <translation>formele looks</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>glamour</translation>
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
        <translation>Te veel pogingen. Wacht even en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Je sessie is verlopen. Log opnieuw in.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Vul je e-mailadres in.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Sommige gegevens lijken niet te kloppen. Controleer ze en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET heeft nu problemen. Probeer het zo opnieuw.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Dat lukte niet. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Er kwam een onverwacht antwoord. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET is niet bereikbaar. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>De configuratie van de app ontbreekt.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Het verzoek duurde te lang. Probeer het opnieuw.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Er wacht nog %Ln melding in je inbox.</numerusform>
            <numerusform>Er wachten nog %Ln meldingen in je inbox.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Systeemmeldingen</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Nieuws over account en service</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Nieuws over bestellingen</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Bestelling bevestigd, verzonden en bezorgd</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Terugbetalingen en retouren</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Gedane terugbetalingen en nieuws over retouren</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Antwoorden van de klantenservice</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Als de klantenservice je antwoordt</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Items waarvoor je een alert hebt, zijn er weer</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Bewaarde of bekeken items worden goedkoper</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Activiteit in Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Likes, reacties, nieuwe volgers en berichten</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Nieuw niveau, punten en nieuwe kortingsbonnen</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Acties en events</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Sales, nieuwe drops en events van de winkel</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Heeft een bijlage gestuurd</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Bestelling geplaatst</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Je bestelling is bevestigd. Je ziet die over een paar minuten onder Bestellingen.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Bestelling %1 is bevestigd. Je ziet die over een paar minuten onder Bestellingen.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET kon zichzelf niet updaten</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Klik bovenaan het venster op Updaten om de nieuwe versie te installeren vanaf de schijfkopie.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Voorbeeld van een melding</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Nieuws over bestellingen en antwoorden van de klantenservice verschijnen hier.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Kledingkast</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Alles wat je hebt, bij elkaar</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Outfitstudio</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Combineer items en zie ze als geheel</translation>
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
        <translation>De outfits die je bewaarde</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Outfitideeën</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nieuwe manieren om je kledingkast te dragen</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Maatadvies</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Jouw maten en de kledingmaat die erbij past</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Zoeken met foto</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Vind een item aan de hand van een foto</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Vergelijken</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Tot vier items naast elkaar</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Zoeken naar updates…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Je hebt de nieuwste versie</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 wordt gedownload</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Download wordt gecontroleerd…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 wordt geïnstalleerd</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Zoeken naar updates is mislukt</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Update kon niet worden gedownload</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Klaar om te installeren</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Update installeren</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 is klaar om te installeren</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 is de nieuwste versie.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET sluit en de nieuwe versie neemt de plaats in.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Gedownload. Start opnieuw om af te ronden, anders wordt de update geïnstalleerd als je afsluit.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Sleep LOOMSTREET in het zojuist geopende venster naar Programma’s en kies Vervang. Open LOOMSTREET daarna opnieuw.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET kon zichzelf op deze computer niet vervangen. Installeer de nieuwe versie vanaf de schijfkopie. Dat duurt een paar seconden.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Je versie wordt niet meer ondersteund.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>De update is gedownload. Start LOOMSTREET opnieuw om af te ronden, anders wordt de update geïnstalleerd als je afsluit.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Zoeken naar updates is mislukt. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>De download is mislukt (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>De download was onvolledig of onderweg veranderd. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Het gedownloade bestand kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>De download is niet door LOOMSTREET ondertekend en is daarom niet geopend.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Downloaden en installeren</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Opnieuw starten en updaten</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Schijfkopie openen</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Je lijkt offline te zijn.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira deed te lang over haar antwoord.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Je stuurt te snel berichten. Wacht even.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Dit bericht kon zo niet worden verstuurd.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET heeft nu problemen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET is niet bereikbaar.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Maten kiezen voor %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Intussen uitverkocht en niet toegevoegd: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Afrekenen kon niet worden gestart. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Die lengte of dat gewicht lijkt niet te kloppen. Controleer de getallen en de eenheden.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Een van deze maten lijkt niet te kloppen. Controleer het getal of laat het leeg.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Ruim</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Aansluitend</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Help me dit te stylen: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Dit bericht is niet bevestigd. Je kunt het opnieuw proberen.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Gesprek is bijgewerkt</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira antwoordt</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira antwoordt. Je kunt deze zo versturen.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Onderwerpen worden op deze computer bewaard. Mira onthoudt wat jullie besproken hebben.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Help me iets te vinden</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Style me met mijn kledingkast</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Wat trek ik vanavond aan</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET mag je locatie niet zien. Typ in plaats daarvan je plaats.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Je locatie is niet gevonden. Typ in plaats daarvan je plaats.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Die plaats is niet bekend. Probeer een grotere in de buurt.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira kan nu niet opnemen. Probeer het zo opnieuw.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira is in een ander gesprek. Probeer het over een minuut opnieuw.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>De lijn haperde even. Zeg je het nog een keer?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>De verbinding viel weg. Bel opnieuw om verder te praten.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Toegang tot de microfoon staat uit. Zet die aan in Systeeminstellingen › Privacy en beveiliging › Microfoon en bel dan opnieuw.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>De microfoon kon niet worden gestart. Controleer of er een is aangesloten en bel dan opnieuw.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Microfoon dempen tijdens een gesprek</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Toegevoegd aan je winkelmand</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>%1 toegevoegd aan je winkelmand</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Toevoegen lukte niet. Probeer het op de productpagina.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Ik breng je erheen…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 wordt geopend</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systeemstandaard</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Niet verbonden</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Jassen</translation>
    </message>
    <message>
        <source>Tops</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Tops</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Broeken en rokken</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Jurken</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Schoenen</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Extra’s</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Zacht</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Zonnig</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Half bewolkt</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Bewolkt</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Mistig</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Motregen</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Regenachtig</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Sneeuw</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Buien</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Onweer</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Dit bestand is er niet meer.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Dit bestand kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Dit bestand is leeg.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Dit bestand is groter dan 10 MB. Kies een kleiner bestand.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Alleen foto’s en PDF-bestanden kunnen worden verstuurd.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Dit bericht is misschien niet aangekomen.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Verborgen</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Onderweg</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Bezorgd</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Schrijf naar de klantenservice</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Gesprek met de klantenservice</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
