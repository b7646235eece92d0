<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Du bist hier</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Ganze Seite öffnen</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Wird gesendet&#xa0;…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Weniger anzeigen</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alles anzeigen</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Eingabe sendet, Umschalt+Eingabe beginnt eine neue Zeile</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Zurück zum Jahr</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Aufgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Zugeklappt</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Zum Neuesten springen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln neue Nachricht</numerusform>
            <numerusform>%Ln neue Nachrichten</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Du bist anscheinend offline. Prüfe deine Verbindung und versuche es erneut.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Passwort verbergen</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Passwort anzeigen</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, vorher %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Ausverkauft</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Von der Wunschliste entfernen</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Auf die Wunschliste</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, ausverkauft</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, für dich empfohlen</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Mit %L1 von 5 bewertet, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Mit %L1 von 5 bewertet</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Dein Konto</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Deine Garderobe immer im Blick</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Hier kannst du alles auch ohne Konto ansehen und kaufen. Mit Konto weiß der Shop, wo deine Pakete sind und worauf du wartest.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Konto erstellen</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Alle Bestellungen an einem Ort</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Wo jedes Paket gerade ist, und Rücksendungen, ohne nach dem Beleg zu suchen</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Nachricht, wenn es darauf ankommt</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Deine Größe ist wieder da oder der Preis gesunken</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Mitgliedschaft und Gutscheine</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Punkte, Status und was sie dir bringen</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Eine Kasse, die dich kennt</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Deine Adresse steht schon da</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Kundenservice</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Bestellungen, Rücksendungen und Größen</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Bestellungen</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Unterwegs und schon gekauft</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Paket verfolgen</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Mit Paket- oder Bestellnummer</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Rücksendungen</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Etwas zurückschicken</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Für dich</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Wunschliste</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Noch nichts gespeichert</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln Teil</numerusform>
            <numerusform>%Ln Teile</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Wieder verfügbar und günstiger</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Mitgliedschaft</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Dein Status und deine Punkte</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Gutscheine</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>An der Kasse einlösbar</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Ohne Konto</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Name, Geburtstag und Newsletter</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Datenschutz</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Was der Shop über dich erfährt</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Auf diesem Computer gespeichert</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Konto löschen&#xa0;…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Dein Schlüsselbund antwortet nicht</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Er bewahrt deine Anmeldung sicher auf, ohne ihn geht es nicht. Entsperre ihn und versuche es dann erneut.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Wieder verfügbar</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Preissenkung</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Wieder auf Lager</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Jetzt günstiger</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>Damals: %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Diesen Alarm beenden</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln Alarm</numerusform>
            <numerusform>%Ln Alarme</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Wir schreiben an %1, sobald ein Teil wieder da ist oder im Preis sinkt.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Noch keine Alarme</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Ist ein Teil in deiner Größe ausverkauft, klicke auf „Sag mir Bescheid“. Bei allen anderen auf „Bei Preissenkung Bescheid geben“.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Neuheiten</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Melde dich an, um deine Alarme zu sehen</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Wir sagen dir Bescheid, wenn ein Teil in deiner Größe wieder da ist oder weniger kostet.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Dazu schicken wir dir keine E-Mail.</numerusform>
            <numerusform>Dazu schicken wir dir keine E-Mails.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln Teil</numerusform>
            <numerusform>%1, %Ln Teile</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Designer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln Designer</numerusform>
            <numerusform>%Ln Designer</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Designer finden</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Weitere Designer</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Designer mit %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Keine Designer zu „%1“</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Prüfe die Schreibweise oder sieh dir alle an.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Alle Designer anzeigen</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Hier ist noch nichts</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Jede Woche kommen neue Teile.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Entdecken</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln Bewertung</numerusform>
            <numerusform>%Ln Bewertungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln verkauft</numerusform>
            <numerusform>%Ln verkauft</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Vorverkauf</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Am häufigsten gewählt: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Hilf mir beim Stylen</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Neben Teilen, die du gespeichert oder angesehen hast</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>GRATIS-Versand weltweit</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Ab einem Warenkorb von %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Gut zu wissen</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Einfuhrabgaben inklusive</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Versand wird an der Kasse berechnet</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Wir mailen dir, sobald es wieder da ist</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Sag mir Bescheid</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>In den Warenkorb</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Zum Abbestellen klicken</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Kasse wird geöffnet&#xa0;…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Jetzt kaufen</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Anruf mit %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>In eigenem Fenster öffnen</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Anruf beenden</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Anruf anzeigen</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>%1 anrufen</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Noch einmal anrufen</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofon ist an</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofon ist stumm</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Wird angerufen&#xa0;…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Überlegt</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Spricht</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Hört zu</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Anruf beendet</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Stummschaltung aufheben</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stummschalten</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Rabattcode</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Einlösen</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Warenkorb konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Deine Artikel sind sicher. Prüfe deine Verbindung und versuche es erneut.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Dein Warenkorb ist leer</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Was du hinzufügst, erscheint hier.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Weiter shoppen</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1 wurde entfernt.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Dein früherer Warenkorb ist abgelaufen. Darin lag %Ln Artikel.</numerusform>
            <numerusform>Dein früherer Warenkorb ist abgelaufen. Darin lagen %Ln Artikel.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Zurücklegen</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Menge von %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Aus dem Warenkorb entfernen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Warenkorb</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Warenkorb</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>An der Seite anzeigen</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Zwischensumme</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabatt</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Einfuhrabgaben inklusive · Versand wird an der Kasse berechnet</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Zur Kasse</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Schließe die Zahlung im Kassenfenster ab. Dein Warenkorb bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Kollektion</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln Neuheit in den letzten 30 Tagen</numerusform>
            <numerusform>%Ln Neuheiten in den letzten 30 Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Diese Kollektion ist nicht verfügbar</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Vielleicht heißt sie jetzt anders oder wird hier nicht verkauft: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Keine Artikel zu diesen Filtern</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Entferne einen Filter, um mehr zu sehen.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Mach den Look komplett</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Teile, die dazu passen</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Gefällt auch anderen</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Wer dieses Teil ansah, mochte auch diese</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Das könnte dir auch gefallen</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Teile zum Vergleich hinzufügen</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Teil hinzufügen</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Von deiner Wunschliste und was du angesehen hast</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Speichere Teile oder sieh sie dir an und füge sie hier hinzu.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Mit %1 vergleichen</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Größen</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Aus dem Vergleich entfernen</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>In deinem Land nicht verfügbar.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>keine Angabe</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Größen von %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Zurück zum Anfang</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Was andere tragen</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Umsehen</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Gefolgt</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Neues von deinen Designern</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Neues ansehen</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Kleiderschrank</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Was ziehe ich heute an?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Kleiderschrank öffnen</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Deine Bestellungen und Alarme</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Deine Mitgliedschaft</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Vorteile ansehen</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Wo ist mein Paket?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Bestellung %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Bestellung ansehen</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Preissenkungen</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Deine Teile sind jetzt günstiger</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Merk dir, was du liebst</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln Teil gespeichert</numerusform>
            <numerusform>%Ln Teile gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Wunschliste ansehen</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Dein Konto löschen?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Dein Profil, deine Alarme, deine Mitgliedschaft und die Liste deiner Bestellungen werden endgültig gelöscht. Bestellungen, die unterwegs sind, kommen noch an. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Gib zur Bestätigung deine E-Mail-Adresse ein</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Konto löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Kollektionen</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Alle Filter löschen</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>In „%1“ suchen</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Nichts unter diesem Namen</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Weniger anzeigen</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>%Ln anzeigen</numerusform>
            <numerusform>Alle %Ln anzeigen</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Teile anzeigen</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>%Ln Teil anzeigen</numerusform>
            <numerusform>%Ln Teile anzeigen</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Filter schließen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln ausgewählt, %L1 lassen sich vergleichen</numerusform>
            <numerusform>%Ln ausgewählt, %L1 lassen sich vergleichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln ausgewählt</numerusform>
            <numerusform>%Ln ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Wähle zwei bis vier Teile</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Neueste zuerst</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Preis: aufsteigend</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Preis: absteigend</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Du hast alles gesehen: %Ln</numerusform>
            <numerusform>Du hast alle %Ln gesehen</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Kollektion: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Größe wählen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Für dich empfohlen: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>In deinem Warenkorb</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Austauschen</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Weglassen</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 von %Ln Teil</numerusform>
            <numerusform>%L1 von %Ln Teilen</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Statt: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Im Moment nichts Vergleichbares.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Miras Auswahl</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Dein Look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Wähle die Größen, tausche aus, was dir weniger gefällt, und lass weg, was du schon hast.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Deine Maße</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira ermittelt daraus deine Größen. Sie kommen in eure Unterhaltung, und eine Kopie bleibt auf diesem Computer, bis du dich abmeldest.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Körpergröße (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>Fuß</translation>
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
        <translation>Brust (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Taille (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Hüfte (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Lass die Felder leer, wenn du die Maße nicht kennst.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Bevorzugte Passform</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>An Mira senden</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Von diesem Computer löschen</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Look damit zusammenstellen</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Größe wählen und in den Warenkorb</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>%1 schreiben</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look mit: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Meine Teile · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Mit meinen Teilen stylen</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Look ansehen: %Ln Teil, in deiner Größe</numerusform>
            <numerusform>Look ansehen: %Ln Teile, alle in deiner Größe</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Neues Thema</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Themen&#xa0;…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Mit meinen Teilen stylen&#xa0;…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Meine Maße&#xa0;…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Wetter&#xa0;…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Neben der Seite anzeigen</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Vorschläge</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Senden: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Unterhaltung mit %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Name des Themas</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>„%1“ löschen?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Meine Maße eingeben</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 nimmt zuerst diese und ergänzt Neues nur dort, wo etwas fehlt.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Noch nichts zum Stylen da</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Hier erscheinen die Teile aus deinem Warenkorb und von deiner Wunschliste.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln ausgewählt, mehr geht nicht</numerusform>
            <numerusform>%Ln ausgewählt, mehr geht nicht</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>In deinem Warenkorb</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Auf deiner Wunschliste</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Wo bist du? Dann passt der Look zum Tag.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Passend zum Wetter stylen</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Meinen Standort verwenden</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Wofür ziehst du dich an?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Nenn %1 den Anlass, ein Lieblingsteil oder ein Budget, und sie stellt alles zusammen.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Melde dich an, um alles zu deinen Bestellungen und Alarmen zu sehen.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
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
        <translation>Kundenservice</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Melde dich an, um deine Benachrichtigungen zu sehen</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Nichts Neues</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Bestellungen unterwegs, Teile, die wieder da sind, und niedrigere Preise erscheinen hier.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Hier findest du alles zu deinen Bestellungen und zu den Teilen, denen du folgst.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Ungelesen</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Alle als gelesen markieren</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Benachrichtigungen einstellen</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Erwartet: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Bestellung</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Bestellt am %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Paket</numerusform>
            <numerusform>Pakete</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Rücksendungen &amp; Erstattungen</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Diese Bestellung ist nicht hier</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Deine neue Bestellung erscheint hier in ein paar Minuten.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Vielleicht gehört sie zu einem anderen Konto.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Melde dich an, um diese Bestellung zu sehen</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Ein Paket lässt sich mit seiner Nummer auch ohne Konto verfolgen.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Menge %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Bestellung wieder anzeigen</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Bestellung ausblenden</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Welche Bestellungen</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Unterwegs</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Zugestellt</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Alle deine Bestellungen sind ausgeblendet</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Nichts unterwegs</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Noch nichts zugestellt</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Keine Rücksendungen</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Einige davon sind ausgeblendet.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Ausgeblendete Bestellungen anzeigen</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Alle Bestellungen</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Deine Bestellung ist auf dem Weg zu dieser Seite</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Noch keine Bestellungen</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Was du bestellst, erscheint hier, samt dem Weg zu dir.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Melde dich an, um deine Bestellungen zu sehen</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Wo sie sind, was drin ist und wie du etwas zurückschickst.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Auf diesem Computer aus deinen Bestellungen ausgeblendet.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Schritt %L1 von %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Lieferadresse</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Rücksendung starten</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Paket %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Diese Nummer kennt noch niemand</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Es kann einen Tag dauern, bis der Versanddienst ein neues Paket kennt.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Seite des Versanddienstes öffnen</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Der Versanddienst hat noch nichts gemeldet.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Der Weg des Pakets</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Vorübergehend nicht verfügbar</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Diese Funktion macht gerade Pause. Bitte versuche es später erneut.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Dieses Teil ist nicht verfügbar</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Vielleicht ist es endgültig ausverkauft oder wird hier nicht verkauft: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Wir mailen dir, wenn es weniger kostet</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Bei Preissenkung Bescheid geben</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln Teil kostet weniger als beim letzten Ansehen</numerusform>
            <numerusform>%Ln Teile kosten weniger als beim letzten Ansehen</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Noch nichts zu beobachten</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Gerade keine Preissenkungen</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Speichere ein Teil oder sieh es dir an, dann siehst du hier, wenn es weniger kostet.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Deine gespeicherten und angesehenen Teile kosten so viel wie zuvor oder wurden in einer anderen Währung angesehen.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Final Sale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Bild %L1 von %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, Bild %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Alle ansehen</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Kein Interesse</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Nach %Ln Tag: %1</numerusform>
            <numerusform>Nach %Ln Tagen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Antwort des Shops: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Bewertungen</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Mehr Bewertungen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
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
        <translation>Fragen und Antworten</translation>
    </message>
    <message>
        <source>Name</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Geburtstag</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Datum wählen</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Die Adresse, mit der du dich anmeldest</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Bei uns seit %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Newsletter</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Per E-Mail</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Neue Teile und Angebote an %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Per SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Dafür brauchen wir oben deine Telefonnummer</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Melde dich an, um dein Profil zu sehen</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Dein Name, deine Telefonnummer und was wir dir schicken dürfen.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Entdecken</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Sieh dich ein wenig um, dann findest du hier, was dazu passt.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Zuletzt angesehen</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Noch kein Verlauf</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Hier sammeln sich die Teile, die du ansiehst, damit du sie wiederfindest.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Melde dich an, dann mailen wir dir, sobald es wieder da ist.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Die E-Mail geht an %1. Klicke noch einmal, wenn du sie nicht mehr möchtest.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Die E-Mail geht an %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Bild %L1 vergrößern</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln Ergebnis für „%1“</numerusform>
            <numerusform>%Ln Ergebnisse für „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Was suchst du?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Keine Ergebnisse für „%1“</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Prüfe die Schreibweise, versuche ein allgemeineres Wort oder stöbere in den Neuheiten.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Nichts passt zu diesen Filtern</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Entferne ein, zwei Filter, um mehr zu „%1“ zu sehen</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Abmelden?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Warenkorb und Wunschliste bleiben auf diesem Computer. Bestellungen und Mitgliedschaft sind wieder da, sobald du dich anmeldest.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Größentabelle</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Einheit der Größen</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sortieren: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Tools</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Im Moment gibt es keine Tools.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Paket- oder Bestellnummer</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Sie steht in der E-Mail zum Versand.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Diese Nummer kennen wir nicht. Prüfe sie oder versuche es morgen erneut: Ein neues Paket ist manchmal erst nach einem Tag bekannt.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Verfolgen</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Diese Seite ist nicht verfügbar</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Vielleicht ist sie umgezogen oder kommt mit einer anderen Version.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Klicke bei einem Teil auf das Herz, dann wartet es hier auf dich. Auch seinen Preis behalten wir im Blick.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Dein Konto: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Dein Konto wird gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Niemand ist angemeldet</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Für Bestellungen, Alarme und Mitgliedschaft brauchst du ein Konto. Zum Stöbern und Kaufen nicht.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Wechselt mit dem Desktop zwischen hell und dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Fensterrahmen des Desktops</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Eine Titelleiste über den Tabs, wie bei anderen Fenstern</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Sag, was du suchst oder wofür es ist.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Anruf abbrechen</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Im Chat weitermachen, auch schriftlich</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Anruf mit %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Anrufdauer: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Im Chat anzeigen</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Schließen und im Chat weitermachen</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Anruf beenden und schließen</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Nur das Bild</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Anruf mit %1 anzeigen</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Anruf mit %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Als ganze Seite öffnen</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Jederzeit unter „Bestellungen“ zu verfolgen.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Seite neu laden</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Sichere Kasse bei Shopify  ·  Dein Warenkorb bleibt, wie er ist</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Ein Link auf dieser Seite führt aus der Kasse heraus, zu %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Im Browser öffnen</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Die Kasse lässt sich hier nicht anzeigen</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Im Browser fortfahren</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET ist nicht eingerichtet</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Führe scripts/sync-secrets.sh im Projektordner aus und baue dann neu.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Land und Währung</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Sprache des Shops</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Teile neben dem Raster öffnen</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>In breiten Fenstern erscheint ein Teil neben der Seite, auf der du es gefunden hast</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Maße in</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Zentimeter und Kilogramm</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Zoll und Pfund (lb)</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Seite ohne Titel</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Diashow anhalten</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Diashow abspielen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Dieses Bild konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Land und Sprache: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Land und Sprache</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Sprachen suchen</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Länder und Währungen suchen</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Länder</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Keine Sprache zu „%1“</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Kein Land zu „%1“</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Im Fenster</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Für ein paar Sekunden ein Banner am oberen Rand.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Auf dem Desktop</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Dort, wo dein Desktop Meldungen von Programmen zeigt, auch wenn kein Fenster offen ist.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Mit Ton</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Zähler auf dem Programmsymbol</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Wie viel du noch nicht gelesen hast.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Beispiel anzeigen</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Worüber</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Wird auf diesem Computer nicht mehr empfohlen.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Seitenbereich</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>In neuem Tab öffnen</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Seitenbereich schließen</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Breite des Seitenbereichs</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Dem Shop bei der Auswahl helfen</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Sagt ihm, welche Seiten und Teile angesehen, in den Warenkorb gelegt und gekauft werden und wann das Programm unerwartet endete, ohne deinen Namen. Ist das ausgeschaltet, wird nur das Nötigste gesendet.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>In jedem Fall</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Nötig ist, worum du bittest</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Die Seiten, die du öffnest, deine Suchen, dein Warenkorb und deine Bestellungen müssen den Shop erreichen.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Was du speicherst, bleibt auf diesem Computer</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Deine Wunschliste, was du angesehen und was du gesucht hast, bis du es löschst.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Deine Anmeldung liegt im Schlüsselbund</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Gibt es keinen, dann in einer Datei, die nur du lesen kannst. Die Anmeldung endet nach 60 Tagen und immer, wenn du dich abmeldest.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Screenshot gespeichert</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Der Screenshot konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Prüfe, ob in deinem Bilderordner noch Platz ist.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Ordner anzeigen</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Suchen oder Link einfügen</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Mit Bild suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Updates</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Weiter mit %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Du wirst angemeldet&#xa0;…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 öffnet sich in deinem Browser. Melde dich dort an, dann bist du auch hier angemeldet.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Adresse kopieren</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Falls sich der Browser nicht von selbst geöffnet hat</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Hier ist nichts passiert?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Füge den Link ein, bei dem dein Browser gelandet ist</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Er beginnt mit „wrenfieldstore://“. Manche Browser zeigen ihn in der Adresszeile.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Anmeldung abschließen</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Konto erstellen</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>In deinem Konto anmelden</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Möglichkeiten zur Anmeldung</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>E-Mail-Code</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Wir haben einen Code an %1 geschickt. Es kann eine Minute dauern, bis er ankommt.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Wir mailen dir zuerst einen Code, um sicher zu sein, dass die Adresse dir gehört.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Wir mailen dir einen Code zum Anmelden. Du brauchst kein Passwort.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Bestätigungscode</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Erneut senden in %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Erneut senden</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Code erneut senden</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Passwort (mindestens 6 Zeichen)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Name (optional)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Passwort vergessen? Melde dich mit einem E-Mail-Code an</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Code per E-Mail</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>oder weiter mit</translation>
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
        <translation>Testen</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Mikrofontest beenden</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Mikrofon testen</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Es wird gerade für den Anruf verwendet.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Sag etwas: Der Balken folgt deiner Stimme. Nichts verlässt diesen Computer.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Zeigt, wie laut du bist. Nichts verlässt diesen Computer.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Lautsprecher</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 schaltet das Mikrofon von überall stumm, solange ein Anruf dauert.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M schaltet das Mikrofon im Anruffenster stumm.</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Nach „%1“ suchen</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt gesucht</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Angesehen und gespeichert</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Kein Teil gefunden. Die Eingabetaste durchsucht alle.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>auswählen</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>schließen</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>„%1“ aus den letzten Suchen entfernen</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Bild: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Öffnet sich im Browser</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Nachricht schreiben</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Bild oder PDF anhängen</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Bilder und PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Bild oder PDF hier ablegen</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Wie können wir helfen?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Frag nach einer Bestellung, einer Rücksendung oder deiner Größe. Auch Bilder helfen.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Wo ist meine Bestellung?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Ich möchte etwas zurückschicken</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Welche Größe soll ich nehmen?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 schließen</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Neuer Tab rechts</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Tab lösen</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Tab anheften</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Tab in neues Fenster verschieben</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Geschlossenen Tab wieder öffnen</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Tab schließen</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Andere Tabs schließen</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Seitenleiste ausklappen</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Seitenleiste einklappen</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Tabs</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Neuer Tab</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Entfernt aus: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Zuletzt geprüft: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Noch nicht geprüft</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Diese Kopie von LOOMSTREET kann sich nicht selbst aktualisieren.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET sucht von selbst nach neuen Versionen.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET sucht vorerst nicht von selbst nach neuen Versionen.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Neue Versionen bekommst du dort, woher du das Programm hast. Prüfen kannst du trotzdem hier.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Beim Start und alle sechs Stunden. Gefundenes wird im Hintergrund geladen und beim Beenden installiert; wo das nicht geht, erfährst du es.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Der Shop hat das angehalten. Prüfen kannst du trotzdem hier.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen&#xa0;…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Was ist neu</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Sichere Verbindung zu %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Verbindung ist nicht sicher</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Dein Konto wurde gelöscht.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Du wurdest abgemeldet, bevor dein Konto gelöscht werden konnte. Melde dich erneut an, um es zu löschen.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratis</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln Paket</numerusform>
            <numerusform>%Ln Pakete</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Verpackt</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Storniert</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>In Bearbeitung</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Wartet auf den Versanddienst</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>In Zustellung</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Zustellproblem</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Rücksendung angefragt</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Rücksendung genehmigt</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Erstattet</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Rücksendung abgelehnt</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 und %Ln weiteres</numerusform>
            <numerusform>%1 und %Ln weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Höchstens %Ln Zeichen verwenden.</numerusform>
            <numerusform>Höchstens %Ln Zeichen verwenden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Gib eine Telefonnummer ein, zum Beispiel %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Gib ein Datum ein, zum Beispiel %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Gib ein Datum in der Vergangenheit ein.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Eine Angabe wurde nicht angenommen. Prüfe sie und versuche es erneut.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Gib eine gültige E-Mail-Adresse ein.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Dieser Code ist falsch oder abgelaufen. Fordere einen neuen an.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Zu viele Versuche. Warte eine Minute und versuche es erneut.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-Mail und Passwort passen nicht zusammen. Versuche es erneut oder melde dich mit einem E-Mail-Code an.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Diese Anmeldeart ist noch nicht verfügbar.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Zu diesem Konto gibt es keine E-Mail-Adresse, die wir nutzen können. Versuche eine andere Anmeldeart.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Die Anmeldung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Die Anmeldung ist fehlgeschlagen. Versuche es erneut.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Gib die sechs Ziffern des Codes ein.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Wähle ein Passwort mit mindestens 6 Zeichen.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Gib dein Passwort ein. Es hat mindestens 6 Zeichen.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Das ist nicht der Link vom Ende deiner Anmeldung. Er beginnt mit „wrenfieldstore://“.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREET-Hilfecenter</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Rechtliches</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Tab anheften oder lösen</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Tab nach links verschieben</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Tab nach rechts verschieben</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Teil im Seitenbereich als ganze Seite öffnen</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Teil im Seitenbereich in neuem Tab öffnen</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Screenshot aufnehmen</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Zum Anfang des Bereichs</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Nächster Tab</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Vorheriger Tab</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Empfohlen</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Neueste</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Preis: aufsteigend</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Preis: absteigend</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Bestseller</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Damen</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Herren</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luxus</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Taschen</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Accessoires</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Ab %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Bis %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Final Sale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Nur noch eins da</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Nur noch %Ln da</numerusform>
            <numerusform>Nur noch %Ln da</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Beste Treffer</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Dieses Teil ist von der Rückgabe ausgeschlossen</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Prüfe Größe und Farbe vor dem Bestellen</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Für dich gefertigt</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Rückgabe nur bei Mängeln</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Auf Bestellung gefertigt, plane mehr Zeit ein</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Innerhalb von 30 Tagen, ungetragen, mit allem Zubehör</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Karton, Staubbeutel und Papiere aufheben</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Innerhalb von 30 Tagen, Sohlen ohne Spuren, im Karton</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Probiere sie zuerst drinnen an</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Innerhalb von 30 Tagen, ungetragen, mit Etikett</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Bitte zuerst auswählen: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln Artikel in deinem Warenkorb</numerusform>
            <numerusform>%Ln Artikel in deinem Warenkorb</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Der Code konnte nicht eingelöst werden. Versuche es erneut.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>„%1“ gilt nicht für die Artikel in deinem Warenkorb.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Geschafft: weltweit GRATIS-Versand für dich</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Noch %1 bis zum weltweiten GRATIS-Versand</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Bestellung aufgegeben. Sie erscheint in ein paar Minuten unter „Bestellungen“.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Bestellung %1 aufgegeben. Sie erscheint in ein paar Minuten unter „Bestellungen“.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln Teil  ·  Bestätigung per E-Mail verschickt</numerusform>
            <numerusform>%Ln Teile  ·  Bestätigung per E-Mail verschickt</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Die Seite hat zu lange geladen.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Die Seite führt aus der Kasse heraus.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Die Seite reagiert nicht mehr.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Die Kasse konnte nicht geöffnet werden. Versuche es erneut.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Jetzt %1 günstiger</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>die Arbeit</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>das Date</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>Partys</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>Hochzeiten</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>den Urlaub</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>unterwegs</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>jeden Tag</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>das Wochenende</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>die Schule</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>das Vorstellungsgespräch</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>die Abschlussfeier</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>Festivals</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>den Strand</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>eine lange Nacht</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>den Brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>das Gym</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>festliche Anlässe</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Neu eingetroffen</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Nach deinem Geschmack</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Neu diese Woche</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Neu diese Woche</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Handverlesen</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Neu diese Woche · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Nach deinem Geschmack</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Beliebt bei Leuten wie dir</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Passend zu dem, was du dir ansiehst</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Gerade im Trend</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Passt zu deiner Suche: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Weil du %1 liebst</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Für %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Stil-Tipp: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>Verspieltes</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>Vintage</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>Elegantes</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>Minimalistisches</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>Romantisches</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>Streetstyle</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>Gothic</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>Preppy Looks</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>French Chic</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>Edgy Looks</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>Punk</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>Coquette-Looks</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>Casual Looks</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>Boho</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>Festival-Looks</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>Klassisches</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>Sportliches</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>Schickes</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>Grunge</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>Korea-Looks</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>Japan-Looks</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>New Chinese Style</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>Old Money</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>Quiet Luxury</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>Dark Academia</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>Balletcore</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>Cottagecore</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>Sexy Looks</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>Niedliches</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>Cooles</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>Feminines</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>Androgynes</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>Workwear</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>Formelles</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>Glamour</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>Avantgarde</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>Utility-Looks</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>Western-Looks</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>Resortwear</translation>
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
        <translation>Posteingang</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Zu viele Versuche. Warte einen Moment und versuche es erneut.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Deine Sitzung ist abgelaufen. Melde dich erneut an.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Gib deine E-Mail-Adresse ein.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Einige Angaben scheinen nicht zu stimmen. Prüfe sie und versuche es erneut.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET hat gerade Probleme. Versuche es gleich noch einmal.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Das hat nicht geklappt. Versuche es erneut.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Es kam eine unerwartete Antwort. Versuche es erneut.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET ist nicht erreichbar. Versuche es erneut.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Dem Programm fehlt seine Konfiguration.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Die Anfrage hat zu lange gedauert. Versuche es erneut.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln weitere Benachrichtigung wartet im Posteingang.</numerusform>
            <numerusform>%Ln weitere Benachrichtigungen warten im Posteingang.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Systemmeldungen</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Neues zu Konto und Service</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Neues zu Bestellungen</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Bestellung bestätigt, verschickt und zugestellt</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Erstattungen und Rücksendungen</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Erfolgte Erstattungen und Neues zu Rücksendungen</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Antworten vom Kundenservice</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Wenn der Kundenservice dir antwortet</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Teile, nach denen du gefragt hast, sind wieder verfügbar</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Gespeicherte oder angesehene Teile werden günstiger</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktivität in Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Likes, Kommentare, neue Follower und Nachrichten</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Statuswechsel, Punkte und neue Gutscheine</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Aktionen und Events</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Sales, neue Drops und Events im Shop</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Hat einen Anhang gesendet</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Bestellung aufgegeben</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Deine Bestellung ist bestätigt. Sie erscheint in ein paar Minuten unter „Bestellungen“.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Bestellung %1 ist bestätigt. Sie erscheint in ein paar Minuten unter „Bestellungen“.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET konnte sich nicht aktualisieren</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Klicke oben im Fenster auf „Aktualisieren“, um die neue Version vom Image zu installieren.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Beispiel für eine Benachrichtigung</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Neues zu Bestellungen und Antworten vom Kundenservice erscheinen hier.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Kleiderschrank</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Alles, was du hast, an einem Ort</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Outfit-Studio</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Teile kombinieren und als Ganzes sehen</translation>
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
        <translation>Deine gespeicherten Outfits</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Outfit-Ideen</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Neue Kombinationen aus deinem Kleiderschrank</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Größenberatung</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Deine Maße und die Größe, die dazu passt</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Bildsuche</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Ein Teil anhand eines Bildes finden</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Bis zu vier Teile nebeneinander</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Suche nach Updates&#xa0;…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Alles auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 wird geladen</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Download wird geprüft&#xa0;…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 wird installiert</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Suche nach Updates fehlgeschlagen</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Update konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Bereit zur Installation</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Update installieren</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 ist bereit zur Installation</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 ist die neueste Version.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET wird geschlossen, und die neue Version tritt an seine Stelle.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Geladen. Starte das Programm neu, um das Update abzuschließen, sonst wird es beim nächsten Beenden installiert.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Ziehe LOOMSTREET im eben geöffneten Fenster auf „Programme“ und wähle „Ersetzen“. Öffne LOOMSTREET danach wieder.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET konnte sich auf diesem Computer nicht ersetzen. Installiere die neue Version stattdessen vom Image. Das dauert nur ein paar Sekunden.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Deine Version wird nicht mehr unterstützt.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Das Update ist geladen. Starte LOOMSTREET neu, um es abzuschließen, sonst wird es beim nächsten Beenden installiert.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Suche nach Updates fehlgeschlagen. Prüfe deine Verbindung und versuche es erneut.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Der Download ist fehlgeschlagen (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Der Download war unvollständig oder wurde unterwegs verändert. Versuche es erneut.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Die geladene Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Der Download ist nicht von LOOMSTREET signiert und wurde deshalb nicht geöffnet.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Laden und installieren</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Neu starten und aktualisieren</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Image öffnen</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Du bist anscheinend offline.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira hat zu lange für ihre Antwort gebraucht.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Du sendest zu schnell hintereinander. Warte einen Moment.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Diese Nachricht konnte so nicht gesendet werden.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET hat gerade Probleme.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Größen wählen für: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Inzwischen ausverkauft und nicht hinzugefügt: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Die Kasse konnte nicht geöffnet werden. Prüfe deine Verbindung und versuche es erneut.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Körpergröße oder Gewicht scheinen nicht zu stimmen. Prüfe die Zahlen und die Einheiten.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Eines der Maße scheint nicht zu stimmen. Prüfe die Zahl oder lass das Feld leer.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Locker</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Figurbetont</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Hilf mir beim Stylen: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Diese Nachricht wurde nicht bestätigt. Du kannst es erneut versuchen.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Die Unterhaltung ist aktuell</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira antwortet</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira antwortet. Gleich kannst du das hier senden.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Themen werden auf diesem Computer gespeichert. Mira merkt sich eure gemeinsame Unterhaltung.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Hilf mir, etwas zu finden</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Style mich aus meinem Kleiderschrank</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Was ziehe ich heute Abend an?</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET darf deinen Standort nicht sehen. Gib stattdessen deine Stadt ein.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Dein Standort wurde nicht gefunden. Gib stattdessen deine Stadt ein.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Diese Stadt ist nicht bekannt. Versuche eine größere in der Nähe.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira kann gerade nicht abnehmen. Versuche es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira ist in einem anderen Gespräch. Versuche es in einer Minute noch einmal.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Die Leitung hat gehakt. Sagst du das noch einmal?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Die Verbindung ist abgebrochen. Ruf noch einmal an, um weiterzureden.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Der Zugriff auf das Mikrofon ist aus. Schalte ihn unter Systemeinstellungen › Datenschutz &amp; Sicherheit › Mikrofon ein und ruf dann noch einmal an.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Das Mikrofon konnte nicht gestartet werden. Prüfe, ob eines angeschlossen ist, und ruf dann noch einmal an.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Mikrofon während eines Anrufs stummschalten</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>In deinen Warenkorb gelegt</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>In deinen Warenkorb gelegt: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Hinzufügen hat nicht geklappt. Versuche es auf der Produktseite.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Ich bringe dich hin&#xa0;…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 wird geöffnet</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Jacken &amp; Mäntel</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Oberteile</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Hosen &amp; Röcke</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Kleider</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Schuhe</translation>
    </message>
    <message>
        <source>Extras</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Extras</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Mild</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Sonnig</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Teils bewölkt</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Bedeckt</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Neblig</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Nieselregen</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Regnerisch</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Schnee</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Schauer</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Gewitter</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Diese Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Diese Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Diese Datei ist leer.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Diese Datei ist größer als 10 MB. Wähle eine kleinere.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Nur Bilder und PDF-Dateien können gesendet werden.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Diese Nachricht ist vielleicht nicht angekommen.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Unterwegs</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Zugestellt</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Dem Kundenservice schreiben</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Unterhaltung mit dem Kundenservice</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
</context>
</TS>
