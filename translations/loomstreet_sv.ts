<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Du är här</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Öppna hela sidan</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Skickar…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Visa mindre</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Visa allt</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter skickar, Skift+Enter börjar en ny rad</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Skicka</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Ta bort %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Tidigare</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Tillbaka till året</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Senare</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Utfälld</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Hopfälld</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Hoppa till det senaste</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln nytt meddelande</numerusform>
            <numerusform>%Ln nya meddelanden</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Du verkar vara offline. Kontrollera anslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Dölj lösenordet</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Visa lösenordet</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, tidigare %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Slutsåld</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Upptagen</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Ta bort från önskelistan</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Spara på önskelistan</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Föregående</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, slutsåld</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, rekommenderas för dig</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Betyg %L1 av 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Betyg %L1 av 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Färre</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Fler</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Ditt konto</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Logga ut</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Din stil, alltid sparad</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Allt här går att titta på och köpa utan konto. Med ett konto vet butiken var dina paket är och vad du väntar på.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Logga in</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Skapa konto</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Alla beställningar på ett ställe</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Var varje paket är, och returer utan att leta efter kvittot</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Besked när det gäller</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Din storlek är tillbaka eller priset har sänkts</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Medlemskap och kuponger</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Poäng, nivåer och vad de ger</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>En kassa som känner dig</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Din adress är redan ifylld</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Kundservice</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Beställningar, returer och storlekar</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Beställningar</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>På väg och tidigare köpta</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Spåra paket</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Med paketets eller beställningens nummer</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Returer</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Skicka tillbaka något</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>För dig</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Önskelista</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Inget sparat än</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln artikel</numerusform>
            <numerusform>%Ln artiklar</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Bevakningar</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Tillbaka i lager och sänkta priser</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Medlemskap</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Din nivå och dina poäng</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kuponger</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Kan användas i kassan</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Utan konto</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Namn, födelsedag och nyhetsbrev</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Integritet</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Vad butiken får veta om dig</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Sparat på den här datorn</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Radera konto…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Din nyckelring svarar inte</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Den håller din inloggning säker, och utan den kan ingen logga in. Lås upp den och försök igen.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Tillbaka i lager</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Prissänkning</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Finns i lager igen</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Lägre pris nu</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 när du bad om besked</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Avsluta bevakningen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln bevakning</numerusform>
            <numerusform>%Ln bevakningar</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Vi mejlar dig på %1 när en artikel är tillbaka eller får sänkt pris.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Inga bevakningar än</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Är en artikel slutsåld i din storlek, tryck på ”Meddela när den är tillbaka”. På alla andra: ”Meddela vid prissänkning”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Nyheter</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Logga in för att se dina bevakningar</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Vi säger till när en artikel är tillbaka i din storlek eller kostar mindre.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Vi mejlar dig inte om den.</numerusform>
            <numerusform>Vi mejlar dig inte om dem.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln artikel</numerusform>
            <numerusform>%1, %Ln artiklar</numerusform>
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
        <translation>Hitta en designer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Rensa</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Bokstäver</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Övriga designer</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Designer på %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Inga designer matchar ”%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Kontrollera stavningen eller bläddra bland alla.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Visa alla designer</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Inget här än</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Nya artiklar kommer varje vecka.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Utforska</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln recension</numerusform>
            <numerusform>%Ln recensioner</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln såld</numerusform>
            <numerusform>%Ln sålda</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Förbeställning</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Väljs oftast: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Hjälp mig att styla den här</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Jämför</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Bredvid artiklar du har sparat eller tittat på</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>FRI frakt i hela världen</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>På varukorgar från %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Bra att veta</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Importavgifter ingår</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Frakten räknas ut i kassan</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Vi mejlar dig när den är tillbaka</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Meddela när den är tillbaka</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Tillagd</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Lägg i varukorgen</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Tryck för att ångra</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Öppnar kassan…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Köp nu</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Samtal med %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Öppna i ett fönster</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Avsluta samtalet</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Visa samtalet</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Ring %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Ring igen</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofonen är på</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofonen är avstängd</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Ringer…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Tänker</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Talar</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Mikrofon av</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Lyssnar</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Samtalet avslutat</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Sätt på mikrofonen</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stäng av mikrofonen</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Rabattkod</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Använd</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Varukorgen kunde inte läsas in</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Dina artiklar är i tryggt förvar. Kontrollera anslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Din varukorg är tom</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Det du lägger till visas här.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Fortsätt handla</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1 togs bort.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Din tidigare varukorg har gått ut. %Ln artikel låg i den.</numerusform>
            <numerusform>Din tidigare varukorg har gått ut. %Ln artiklar låg i den.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Lägg tillbaka</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Antal av %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Ta bort från varukorgen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Varukorg</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Varukorg</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Visa som sidopanel</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Delsumma</translation>
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
        <translation>Importavgifter ingår · Frakten räknas ut i kassan</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Till kassan</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Slutför betalningen i kassafönstret. Din varukorg är kvar som den är.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Inte tillgänglig</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Kollektion</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln nyhet de senaste 30 dagarna</numerusform>
            <numerusform>%Ln nyheter de senaste 30 dagarna</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Kollektionen är inte tillgänglig</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Den kan ha bytt namn eller säljs inte i %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Inga artiklar matchar filtren</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Ta bort ett filter för att se fler.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Gör looken komplett</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Artiklar att bära till</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Andra gillade också</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>De som tittade på den här artikeln</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Du kanske också gillar</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Lägg till artiklar att jämföra</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Lägg till artikel</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Från önskelistan och det du har tittat på</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Spara eller titta på artiklar och lägg till dem här.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Jämför med %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Storlekar</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Ta bort från jämförelsen</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Säljs inte i ditt land.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>anges inte</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Storlekar för %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Tillbaka till början</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Vad andra bär</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Se dig omkring</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Följer</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Nytt från dina designer</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Se vad som är nytt</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Garderob</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Vad ska jag ha på mig i dag?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Öppna garderoben</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Dina beställningar och bevakningar</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Ditt medlemskap</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Se vad det ger</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Var är mitt paket?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Beställning %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Visa beställningen</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Prissänkningar</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Dina artiklar kostar mindre nu</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Spara det du älskar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln artikel sparad</numerusform>
            <numerusform>%Ln artiklar sparade</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Visa önskelistan</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Radera ditt konto?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Din profil, dina bevakningar, ditt medlemskap och listan över dina beställningar raderas för gott. Beställningar på väg kommer ändå fram. Detta går inte att ångra.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Skriv din e-postadress för att bekräfta</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Radera konto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Kollektioner</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Rensa alla filter</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Sök i %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Inget med det namnet</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Visa färre</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Visa %Ln</numerusform>
            <numerusform>Visa alla %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Visa artiklar</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Visa %Ln artikel</numerusform>
            <numerusform>Visa %Ln artiklar</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Stäng filter</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln vald, %L1 kan jämföras</numerusform>
            <numerusform>%Ln valda, %L1 kan jämföras</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln vald</numerusform>
            <numerusform>%Ln valda</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Välj två till fyra artiklar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Välj</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Nyast först</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Pris: lägst till högst</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Pris: högst till lägst</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Du har sett allt: %Ln</numerusform>
            <numerusform>Du har sett alla %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Kollektion: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Öppna %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Välj storlek</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Rekommenderas för dig: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>I din varukorg</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Byt ut</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Hoppa över</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 av %Ln artikel</numerusform>
            <numerusform>%L1 av %Ln artiklar</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>I stället för %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Inget liknande just nu.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Miras val</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Din look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Välj storlekar, byt ut det du gillar mindre och hoppa över det du redan har.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>tum</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Dina mått</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira räknar ut dina storlekar från dem. De hamnar i er konversation, och en kopia ligger kvar på den här datorn tills du loggar ut.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metriskt</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Brittiskt</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Längd (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>fot</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Vikt (%1)</translation>
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
        <translation>Byst (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Midja (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Höft (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Lämna tomt om du inte vet.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Önskad passform</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Skicka till Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Radera från den här datorn</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Bygg en look runt den</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Välj storlek och lägg i varukorgen</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Skriv till %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look runt %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Mina artiklar · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Styla med mina artiklar</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Väder</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mer</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Se looken: %Ln artikel i din storlek</numerusform>
            <numerusform>Se looken: %Ln artiklar, alla i din storlek</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nytt ämne</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Ämnen…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Styla med mina artiklar…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Mina mått…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Väder…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Visa bredvid sidan</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Förslag</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Skicka: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Konversation med %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Radera</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Ämnets namn</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Radera ”%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behåll</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Ämnen</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Ange mina mått</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 använder de här först och lägger bara till något nytt där det behövs.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Inget att styla med än</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Artiklar i varukorgen och på önskelistan visas här.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln vald, fler går inte</numerusform>
            <numerusform>%Ln valda, fler går inte</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>I din varukorg</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>På din önskelista</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Var är du? Då passar looken dagen.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Styla mig efter vädret</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stad</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Använd</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Använd min plats</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Vad klär du dig för?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Berätta för %1 om tillfället, en favorit eller en budget, så sätter hon ihop en look.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Logga in för att se det som rör dina beställningar och bevakningar.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Visa</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alla</translation>
    </message>
    <message>
        <source>System</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Kundservice</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notiser</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Logga in för att se dina notiser</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Inget nytt</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Här får du veta om beställningar på väg, artiklar som är tillbaka och sänkta priser.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Det som rör dina beställningar och artiklarna du följer visas här.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Oläst</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Markera alla som lästa</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Inställningar för notiser</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Väntas %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Beställning</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Beställt %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Paket</numerusform>
            <numerusform>Paket</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Artiklar</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Returer och återbetalningar</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Beställningen finns inte här</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Din nya beställning visas här om några minuter.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Den kanske hör till ett annat konto.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Logga in för att se beställningen</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Ett paket går att följa med sitt nummer utan konto.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Antal %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Dold</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Visa beställningen igen</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Dölj beställningen</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Vilka beställningar</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>På väg</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Levererad</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Alla dina beställningar är dolda</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Inget på väg</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Inget levererat än</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Inga returer</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Några av dem är dolda.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Visa dolda beställningar</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Alla beställningar</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Din beställning är på väg till den här sidan</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Inga beställningar än</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Det du beställer visas här, och var det är på vägen till dig.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Logga in för att se dina beställningar</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Var de är, vad som ligger i dem och hur du skickar tillbaka något.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Dold bland dina beställningar på den här datorn.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Steg %L1 av %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Leveransadress</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Starta en retur</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Paket %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Ingen känner till numret än</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Det kan ta en dag innan fraktbolaget känner till ett nytt paket.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Öppna fraktbolagets sida</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Fraktbolaget har inte berättat något om det än.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Paketets resa</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Tillfälligt otillgänglig</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Funktionen är pausad just nu. Försök igen senare.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Ta bort från listan</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Artikeln är inte tillgänglig</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Den kan vara slutsåld för gott eller säljs inte i %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Vi mejlar dig när den kostar mindre</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Meddela vid prissänkning</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln artikel kostar mindre än när du såg den</numerusform>
            <numerusform>%Ln artiklar kostar mindre än när du såg dem</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Inget att bevaka än</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Inga prissänkningar just nu</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Spara eller titta på en artikel, så ser du här när den kostar mindre.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Dina sparade och visade artiklar kostar lika mycket som när du såg dem, eller sågs i en annan valuta.</translation>
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
        <translation>Bild %L1 av %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, bild %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Visa alla</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Inte intresserad</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Efter %Ln dag: %1</numerusform>
            <numerusform>Efter %Ln dagar: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Butiken svarade: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Recensioner</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Fler recensioner</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beskrivning</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>I korthet</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Frågor och svar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Födelsedag</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Välj datum</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Adressen du loggar in med</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Ignorera ändringar</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Sparat</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Hos oss sedan %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Nyhetsbrev</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Via e-post</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Nya artiklar och erbjudanden, till %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Via sms</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Kräver ditt telefonnummer ovan</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Logga in för att se din profil</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Ditt namn, ditt telefonnummer och vad vi får skicka dig.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Upptäck</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Se dig omkring lite, så hittar du här vad som passar till.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Nyligen visade</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Rensa allt</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Ingen historik än</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Artiklarna du tittar på samlas här, så att du hittar tillbaka till dem.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Logga in, så mejlar vi dig när den är tillbaka.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Mejlet går till %1. Tryck igen om du inte längre vill ha det.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Mejlet går till %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Förstora bild %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln träff på ”%1”</numerusform>
            <numerusform>%Ln träffar på ”%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Vad letar du efter?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Inga träffar på ”%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Kontrollera stavningen, prova ett bredare ord eller bläddra bland Nyheter.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Inget matchar filtren</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Ta bort något filter för att se mer av ”%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Logga ut?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Varukorgen och önskelistan är kvar på den här datorn. Beställningar och medlemskap finns igen när du loggar in på nytt.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Storlekstabell</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Enhet för storlekar</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sortera: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Verktyg</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Det finns inga verktyg just nu.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Paket- eller beställningsnummer</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Det står i mejlet om leveransen.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Vi känner inte till numret. Kontrollera det eller försök igen i morgon: ett nytt paket kan ta en dag att dyka upp.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Spåra</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Sidan är inte tillgänglig</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Den kan ha flyttats eller höra till en annan version.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Tryck på hjärtat på en artikel så väntar den på dig här. Vi bevakar priset också.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Ditt konto: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Letar efter ditt konto…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Ingen är inloggad</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Beställningar, bevakningar och medlemskap kräver ett konto. Att titta och handla gör det inte.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Utseende</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Färger</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Som skrivbordet</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Följer skrivbordet mellan ljust och mörkt</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Ljust</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Mörkt</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Skrivbordets fönsterram</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>En namnlist ovanför flikarna, som andra fönster har</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arkiv</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visa</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gå</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Textning av samtalet</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Säg vad du letar efter eller vad det är till för.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Avbryt samtalet</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Chatt</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Fortsätt i chatten för att också skriva</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Samtal med %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Samtalets längd: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Visa i chatten</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Förminska</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Stäng och fortsätt i chatten</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Avsluta samtalet och stäng</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Bara bilden</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Förstora</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Visa samtalet med %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Samtal med %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Öppna som hel sida</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Följ den när som helst under Beställningar.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Läs in sidan igen</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Säker kassa på Shopify  ·  Din varukorg är kvar som den är</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>En länk på sidan leder ut ur kassan, till %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Öppna i webbläsaren</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Kassan kan inte visas här</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Fortsätt i webbläsaren</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET är inte konfigurerat</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Kör scripts/sync-secrets.sh i projektmappen och bygg sedan om.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Land och valuta</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Butikens språk</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Öppna artiklar bredvid rutnätet</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>I breda fönster visas en artikel intill platsen där den hittades</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Mått i</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimeter och kilo</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Tum och pund</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Namnlös sida</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Pausa bildspelet</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Spela upp bildspelet</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Blanksteg</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zooma in</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Bilden kunde inte läsas in</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Land och språk: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Land och språk</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Sök språk</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Sök länder och valutor</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Länder</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Inget språk matchar ”%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Inget land matchar ”%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>I fönstret</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>En banderoll högst upp, i några sekunder.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>På skrivbordet</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Där skrivbordet visar programmens notiser, även när inget fönster är öppet.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Med ljud</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Antal på programikonen</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Hur mycket du inte har läst.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Visa ett exempel</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Om vad</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Rekommenderas inte längre på den här datorn.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Sidopanel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Öppna i ny flik</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Stäng sidopanelen</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Sidopanelens bredd</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Hjälp butiken att välja vad som visas</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Berättar vilka sidor och artiklar som visas, läggs i varukorgen och köps, och när programmet avslutades oväntat, utan ditt namn. När det är av skickas bara det nödvändiga.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>I båda fallen</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Nödvändigt är det du ber om</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Sidorna du öppnar, dina sökningar, din varukorg och dina beställningar måste nå butiken.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Det du sparar stannar på den här datorn</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Din önskelista, det du har tittat på och sökt efter, tills du rensar det.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Din inloggning ligger i nyckelringen</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Finns ingen ligger den i en fil som bara du kan läsa. Inloggningen upphör efter 60 dagar och när du loggar ut.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Skärmbilden sparades</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Skärmbilden kunde inte sparas</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Kontrollera att det finns plats i mappen Bilder.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Visa mappen</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Sök eller klistra in en länk</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Sök med bild…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Uppdateringar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Avdelningar</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Fortsätt med %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Loggar in dig…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 öppnas i din webbläsare. Logga in där, så är du inloggad här.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopierad</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Kopiera adressen</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>För en webbläsare som inte öppnades av sig själv</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Hände inget här?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Klistra in länken som webbläsaren hamnade på</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Den börjar med ”wrenfieldstore://”. Vissa webbläsare visar den i adressfältet.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Slutför inloggningen</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Skapa ditt konto</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Logga in på ditt konto</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Sätt att logga in</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>E-postkod</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Vi skickade en kod till %1. Det kan ta en minut innan den kommer.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Vi mejlar dig först en kod, för att vara säkra på att adressen är din.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Vi mejlar dig en kod att logga in med. Du behöver inget lösenord.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Verifieringskod</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Skicka igen om %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Skicka igen</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Skicka koden igen</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Lösenord (minst 6 tecken)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Namn (valfritt)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Glömt lösenordet? Logga in med en e-postkod i stället</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Mejla mig en kod</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>eller fortsätt med</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppa</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Testa</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Sluta testa mikrofonen</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Testa mikrofonen</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Ljudstyrka</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Den används för samtalet.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Säg något: stapeln följer din röst. Inget lämnar den här datorn.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Visar hur högt du talar. Inget lämnar den här datorn.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Högtalare</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 stänger av mikrofonen var du än är, så länge ett samtal pågår.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M stänger av mikrofonen i samtalsfönstret.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Länk</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Sök efter ”%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Senaste</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Sett och sparat</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Ingen artikel hittades. Enter söker bland alla.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>välj</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>stäng</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Ta bort ”%1” från senaste sökningar</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Bild: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Öppnas i webbläsaren</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Skriv ett meddelande</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Bifoga en bild eller PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Bilder och PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Släpp en bild eller PDF här</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Hur kan vi hjälpa till?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Fråga om en beställning, en retur eller din storlek. Bilder hjälper också.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Var är min beställning?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Jag vill returnera något</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Vilken storlek ska jag ta?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Läser in</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Stäng %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Ny flik till höger</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Lossa fliken</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Fäst fliken</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Flytta fliken till nytt fönster</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Öppna stängd flik igen</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Stäng fliken</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Stäng andra flikar</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Fäll ut sidofältet</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Fäll ihop sidofältet</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Flikar</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Ny flik</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Framåt</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Meny</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Borttaget från: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Senast kontrollerat: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Inte kontrollerat än</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Den här kopian av LOOMSTREET kan inte uppdatera sig själv.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET söker själv efter nya versioner.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET söker tills vidare inte själv efter nya versioner.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Nya versioner får du där du hämtade programmet. Du kan ändå kontrollera här.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Vid start och var sjätte timme. Det som hittas hämtas i bakgrunden och installeras när du avslutar; går det inte får du veta det.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Butiken har pausat det. Du kan ändå kontrollera här.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sök efter uppdateringar…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Nyheter i versionen</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Hoppa över den här versionen</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimera</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximera</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Stäng fönstret</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Säker anslutning till %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Anslutningen är inte säker</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Ditt konto har raderats.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Du loggades ut innan kontot kunde raderas. Logga in igen för att radera det.</translation>
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
        <translation>Skatter</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln paket</numerusform>
            <numerusform>%Ln paket</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Bekräftad</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Packad</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Avbeställd</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Pågår</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Väntar på fraktbolaget</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Ute för leverans</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Leveransproblem</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Retur begärd</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Retur godkänd</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Återbetald</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Retur nekad</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 och %Ln till</numerusform>
            <numerusform>%1 och %Ln till</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Använd högst %Ln tecken.</numerusform>
            <numerusform>Använd högst %Ln tecken.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Ange ett telefonnummer, till exempel %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Ange ett datum, till exempel %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Ange ett datum som har varit.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Något du angav godtogs inte. Kontrollera det och försök igen.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Ange en giltig e-postadress.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Koden är fel eller har gått ut. Begär en ny.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>För många försök. Vänta en minut och försök igen.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-postadressen och lösenordet stämmer inte överens. Försök igen eller logga in med en e-postkod.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Det här inloggningssättet finns inte än.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Kontot har ingen e-postadress som vi kan använda. Prova ett annat sätt.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Inloggningen avbröts.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Inloggningen misslyckades. Försök igen.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Ange kodens sex siffror.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Välj ett lösenord med minst 6 tecken.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Ange ditt lösenord. Det har minst 6 tecken.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Det är inte länken som inloggningen slutade på. Den börjar med ”wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREETs hjälpcenter</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Avtal och villkor</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nytt fönster</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Fäst eller lossa fliken</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Flytta fliken bakåt</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Flytta fliken framåt</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Öppna sidopanelens artikel som hel sida</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Öppna sidopanelens artikel i ny flik</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Ta en skärmbild</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Helskärm</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Gå till avdelningens startsida</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Nästa flik</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Föregående flik</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Utvalt</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Nyast</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Pris: lägst till högst</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Pris: högst till lägst</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Bästsäljare</translation>
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
        <translation>Dam</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Herr</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Lyx</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Väskor</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Accessoarer</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Från %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Upp till %1</translation>
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
        <translation>Bara en kvar</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Bara %Ln kvar</numerusform>
            <numerusform>Bara %Ln kvar</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Bästa träff</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Den här artikeln kan inte returneras</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Kontrollera storlek och färg innan du beställer</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Tillverkas för dig</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Kan bara returneras om den är felaktig</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Görs på beställning, så räkna med mer tid</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Inom 30 dagar, oanvänd, med allt som följde med</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Spara kartong, dustbag och papper</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Inom 30 dagar, sulor utan märken, i sin kartong</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Prova dem inomhus först</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Inom 30 dagar, oanvänd, med etiketter på</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Välj först: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln artikel i din varukorg</numerusform>
            <numerusform>%Ln artiklar i din varukorg</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Koden kunde inte användas. Försök igen.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>”%1” gäller inte för artiklarna i din varukorg.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Du har fått FRI frakt i hela världen</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Handla för %1 till för FRI frakt i hela världen</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Beställningen är lagd. Den visas under Beställningar om några minuter.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Beställning %1 är lagd. Den visas under Beställningar om några minuter.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln artikel  ·  bekräftelse skickad till din e-post</numerusform>
            <numerusform>%Ln artiklar  ·  bekräftelse skickad till din e-post</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Sidan tog för lång tid att läsa in.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Sidan leder ut ur kassan.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Sidan slutade fungera.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Kassan kunde inte öppnas. Försök igen.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>%1 billigare nu</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>jobbet</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>dejten</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>festen</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>bröllopet</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>semestern</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>resan</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>vardags</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>helgen</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>skolan</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>jobbintervjun</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>examen</translation>
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
        <translation>utekvällen</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>brunchen</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>gymmet</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>finare tillfällen</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Nyinkommet</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Utifrån det du gillar</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Nytt den här veckan</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Nytt den här veckan</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Handplockat</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Nytt den här veckan · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Utifrån det du gillar</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Älskas av kunder som du</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Utifrån det du har tittat på</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Trendar nu</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Matchar din sökning: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>För att du älskar %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Till %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Stiltips: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>ljuva looks</translation>
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
        <translation>eleganta looks</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalism</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantiska looks</translation>
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
        <translation>klassiska looks</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportiga looks</translation>
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
        <translation>koreanskt mode</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japanskt mode</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>nykinesiskt mode</translation>
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
        <translation>sexiga looks</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>söta looks</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>coola looks</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>feminina looks</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgyna looks</translation>
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
        <translation>formella looks</translation>
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
        <translation>resortmode</translation>
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
        <translation>Rea</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Inkorg</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>För många försök. Vänta en stund och försök igen.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Din session har gått ut. Logga in igen.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Ange din e-postadress.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Några uppgifter verkar inte stämma. Kontrollera dem och försök igen.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET har problem just nu. Försök igen om en liten stund.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Det gick inte. Försök igen.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Svaret blev inte som väntat. Försök igen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET gick inte att nå. Försök igen.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Appen saknar sin konfiguration.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Begäran tog för lång tid. Försök igen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln notis till väntar i inkorgen.</numerusform>
            <numerusform>%Ln notiser till väntar i inkorgen.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Systemmeddelanden</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Nytt om konto och tjänster</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Nytt om beställningar</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Beställning bekräftad, skickad och levererad</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Återbetalningar och returer</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Gjorda återbetalningar och nytt om returer</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Svar från kundservice</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>När kundservice svarar dig</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Artiklar du bevakar finns i lager igen</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Sparade eller visade artiklar blir billigare</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktivitet i Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Gilla-markeringar, kommentarer, nya följare och meddelanden</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Ändrad nivå, poäng och nya kuponger</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Kampanjer och event</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Reor, nya släpp och event i butiken</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Skickade en bilaga</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Beställningen är lagd</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Din beställning är bekräftad. Den visas under Beställningar om några minuter.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Beställning %1 är bekräftad. Den visas under Beställningar om några minuter.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET kunde inte uppdatera sig</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Klicka på Uppdatera högst upp i fönstret för att installera den nya versionen från skivavbilden.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Exempel på notis</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Nytt om beställningar och svar från kundservice visas här.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Garderob</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Allt du äger på ett ställe</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Outfitstudio</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Kombinera artiklar och se dem som en helhet</translation>
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
        <translation>Outfiterna du har sparat</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Outfitidéer</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nya sätt att bära det du har i garderoben</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Storleksråd</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Dina mått och storleken som passar dem</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Sök med bild</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Hitta en artikel med hjälp av en bild</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Jämför</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Upp till fyra artiklar sida vid sida</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Söker efter uppdateringar…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Du har den senaste versionen</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Hämtar LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Kontrollerar hämtningen…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Installerar LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Det gick inte att söka efter uppdateringar</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Uppdateringen kunde inte hämtas</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Klar att installera</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Installera uppdateringen</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 är klar att installera</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 är den senaste versionen.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET stängs och den nya versionen tar över.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Hämtad. Starta om för att slutföra, annars installeras den nästa gång du avslutar.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Dra LOOMSTREET till Program i fönstret som just öppnades och välj Ersätt. Öppna sedan LOOMSTREET igen.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET kunde inte ersätta sig på den här datorn. Installera den nya versionen från skivavbilden i stället. Det tar några sekunder.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Versionen du har stöds inte längre.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Uppdateringen är hämtad. Starta om LOOMSTREET för att slutföra, annars installeras den nästa gång du avslutar.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Det gick inte att söka efter uppdateringar. Kontrollera anslutningen och försök igen.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Hämtningen misslyckades (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Hämtningen var ofullständig eller ändrades på vägen. Försök igen.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Den hämtade filen kunde inte läsas.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Hämtningen är inte signerad av LOOMSTREET, så den öppnades inte.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Hämta och installera</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Starta om och uppdatera</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Öppna skivavbilden</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Du verkar vara offline.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira tog för lång tid på sig att svara.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Du skickar meddelanden för snabbt. Vänta en stund.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Meddelandet kunde inte skickas som det är skrivet.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET har problem just nu.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET gick inte att nå.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Välj storlekar för %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Slutsålt under tiden och inte tillagt: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Kassan kunde inte öppnas. Kontrollera anslutningen och försök igen.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Längden eller vikten verkar inte stämma. Kontrollera siffrorna och enheterna.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Ett av måtten verkar inte stämma. Kontrollera siffran eller lämna det tomt.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Ledig</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Figurnära</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Hjälp mig att styla: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Meddelandet har inte bekräftats. Du kan försöka igen.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Konversationen är uppdaterad</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira svarar</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira svarar. Du kan skicka de här om en stund.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Ämnen sparas på den här datorn. Mira minns er gemensamma konversation.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Hjälp mig att hitta något</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Styla mig med min garderob</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Vad ska jag ha på mig i kväll</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET får inte se var du är. Skriv din stad i stället.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Din plats kunde inte hittas. Skriv din stad i stället.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Staden är okänd. Prova en större i närheten.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira kan inte svara just nu. Försök igen om en stund.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira sitter i ett annat samtal. Försök igen om en minut.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Det hackade till på linjen. Kan du säga det igen?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Samtalet bröts. Ring igen för att prata vidare.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Mikrofonåtkomsten är av. Slå på den i Systeminställningar › Integritet och säkerhet › Mikrofon och ring sedan igen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Mikrofonen kunde inte startas. Kontrollera att en är ansluten och ring sedan igen.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Stäng av mikrofonen under ett samtal</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Lades i din varukorg</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>%1 lades i din varukorg</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Det gick inte att lägga till. Prova från produktsidan.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Jag tar dig dit…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Öppnar %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemets standard</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Inte ansluten</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Ytterkläder</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Överdelar</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Underdelar</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Klänningar</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Skor</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Extra</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Milt</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Soligt</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Delvis molnigt</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Mulet</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Dimma</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Duggregn</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Regn</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Snö</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Skurar</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Åska</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Filen finns inte kvar.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Filen kunde inte läsas.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Filen är tom.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Filen är större än 10 MB. Välj en mindre.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Bara bilder och PDF-filer kan skickas.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Meddelandet kanske inte kom fram.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Dolda</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>På väg</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Levererade</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Skriv till kundservice</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Konversation med kundservice</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>”%1”</translation>
    </message>
</context>
</TS>
