<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Olet tässä</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Avaa koko sivu</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Lähetetään…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Näytä vähemmän</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Näytä kaikki</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter lähettää, Vaihto+Enter aloittaa uuden rivin</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Lähetä</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Yritä uudelleen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Poista %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Aiemmat</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Takaisin vuoteen</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Myöhemmät</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Laajennettu</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Tiivistetty</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Siirry uusimpaan</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln uusi viesti</numerusform>
            <numerusform>%Ln uutta viestiä</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Verkkoyhteyttä ei näytä olevan. Tarkista yhteys ja yritä uudelleen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Piilota salasana</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Näytä salasana</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, aiemmin %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Loppuunmyyty</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Odota</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Poista toivelistalta</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Lisää toivelistalle</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Haku</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Edellinen</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seuraava</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, loppuunmyyty</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, sinulle suositeltu</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Arvosana %L1/5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Arvosana %L1/5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Vähemmän</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Enemmän</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Kumoa</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Tilisi</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Kirjaudu ulos</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Vaatekaappisi tallessa</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Täällä voi katsella ja ostaa kaikkea ilman tiliä. Tilin avulla kauppa tietää, missä pakettisi ovat ja mitä odotat.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Kirjaudu</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Luo tili</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Tilaukset yhdessä paikassa</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Jokaisen paketin sijainti ja palautukset ilman kuitin etsimistä</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Viesti, kun on aihetta</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Kokosi on taas saatavilla tai hinta on laskenut</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Jäsenyys ja kupongit</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Pisteet, tasot ja niiden edut</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Kassa, joka tuntee sinut</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Osoitteesi on jo valmiina</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Asiakaspalvelu</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Tilaukset, palautukset ja koot</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Tilaukset</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Matkalla olevat ja aiemmat ostokset</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Seuraa pakettia</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Paketin tai tilauksen numerolla</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Palautukset</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Palauta tuote</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Sinulle</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Toivelista</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Ei vielä tallennettuja</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln tuote</numerusform>
            <numerusform>%Ln tuotetta</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Tuotevahdit</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Taas saatavilla ja hinta laskenut</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Jäsenyys</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Tasosi ja pisteesi</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kupongit</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Käytettävissäsi kassalla</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Tili</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Ilman tiliä</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profiili</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Nimi, syntymäpäivä ja uutiskirjeet</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Tietosuoja</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Mitä kauppa saa tietää sinusta</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Tallessa tällä tietokoneella</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Poista tili…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Avainrengas ei vastaa</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Se pitää kirjautumisesi turvassa, eikä ilman sitä voi kirjautua. Avaa avainrenkaan lukitus ja yritä uudelleen.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Taas saatavilla</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Hinnanlasku</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Taas saatavilla</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Hinta laskenut</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 vahdin alkaessa</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Lopeta tämä vahti</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln tuotevahti</numerusform>
            <numerusform>%Ln tuotevahtia</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Lähetämme sähköpostia osoitteeseen %1, kun tuote on taas saatavilla tai sen hinta laskee.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Ei vielä tuotevahteja</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Jos tuote on loppuunmyyty koossasi, paina ”Ilmoita, kun taas saatavilla”. Muissa tuotteissa paina ”Ilmoita hinnanlaskusta”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Uutuudet</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Kirjaudu, niin näet tuotevahtisi</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Kerromme, kun tuote on taas saatavilla koossasi tai maksaa vähemmän.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Emme lähetä siitä sähköpostia.</numerusform>
            <numerusform>Emme lähetä niistä sähköpostia.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln tuote</numerusform>
            <numerusform>%1, %Ln tuotetta</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Suunnittelijat</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln suunnittelija</numerusform>
            <numerusform>%Ln suunnittelijaa</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Etsi suunnittelijaa</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tyhjennä</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Kirjaimet</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Muut suunnittelijat</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Suunnittelijat, alkukirjain %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Haulla ”%1” ei löydy suunnittelijoita</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Tarkista kirjoitusasu tai selaa kaikkia.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Näytä kaikki suunnittelijat</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Täällä ei ole vielä mitään</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Uusia tuotteita saapuu joka viikko.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Tutustu</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln arvostelu</numerusform>
            <numerusform>%Ln arvostelua</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln kpl myyty</numerusform>
            <numerusform>%Ln kpl myyty</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Ennakkomyynti</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Valitaan useimmin: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Auta yhdistämään tämä</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vertaile</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Tallentamiesi tai katsomiesi tuotteiden rinnalla</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>ILMAINEN toimitus kaikkialle maailmaan</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Kun ostosten arvo on vähintään %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Hyvä tietää</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Tuontitullit sisältyvät hintaan</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Toimituskulut lasketaan kassalla</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Lähetämme sähköpostia, kun taas saatavilla</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Ilmoita, kun taas saatavilla</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Lisätty</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Lisää ostoskoriin</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Peru painamalla</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Avataan kassaa…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Osta nyt</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Puhelu: %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Avaa omassa ikkunassa</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Lopeta</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Lopeta puhelu</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Näytä puhelu</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Soita: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Soita uudelleen</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofoni on päällä</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofoni on mykistetty</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Soitetaan…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Miettii</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Puhuu</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Mykistetty</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Kuuntelee</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Puhelu päättyi</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Poista mykistys</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mykistä</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Alennuskoodi</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Käytä</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Ostoskoria ei voitu ladata</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Tuotteesi ovat tallessa. Tarkista yhteys ja yritä uudelleen.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Ostoskorisi on tyhjä</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Lisäämäsi tuotteet näkyvät täällä.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Jatka ostoksia</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1 poistettiin.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Aiempi ostoskorisi on vanhentunut. Siinä oli %Ln tuote.</numerusform>
            <numerusform>Aiempi ostoskorisi on vanhentunut. Siinä oli %Ln tuotetta.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Laita takaisin</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Määrä: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Poista ostoskorista</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Ostoskori</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Ostoskori</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Näytä sivupaneelina</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Välisumma</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Alennus</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Yhteensä</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Tuontitullit sisältyvät hintaan · Toimituskulut lasketaan kassalla</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Kassalle</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Viimeistele maksu kassaikkunassa. Ostoskorisi säilyy ennallaan.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Ei saatavilla</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Mallisto</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln uusi 30 päivän aikana</numerusform>
            <numerusform>%Ln uutta 30 päivän aikana</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Tämä mallisto ei ole saatavilla</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Sen nimi on ehkä vaihtunut tai sitä ei myydä maassasi (%1)</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Näillä suodattimilla ei löydy tuotteita</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Poista suodatin, niin näet enemmän.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Täydennä look</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Tuotteita, jotka sopivat tähän</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Muiden suosikkeja</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Tätä tuotetta katsoneilta</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Saatat pitää myös näistä</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Lisää vertailtavia tuotteita</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Lisää tuote</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Toivelistaltasi ja katsomistasi tuotteista</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Tallenna tai katso tuotteita ja lisää ne tähän.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Vertaa: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Koot</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Materiaali</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Poista vertailusta</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Ei saatavilla maassasi.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>ei ilmoitettu</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Koot: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Takaisin ensimmäiseen</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Mitä muut pukevat</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Katsele ympärillesi</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Seuratut</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Uutta suunnittelijoiltasi</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Katso uutuudet</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Vaatekaappi</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Mitä puen tänään?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Avaa vaatekaappi</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Tilauksesi ja tuotevahtisi</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Jäsenyytesi</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Katso edut</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Missä pakettini on?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Tilaus %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Näytä tilaus</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Hinnanlaskut</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Tuotteesi ovat nyt edullisempia</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Pane suosikit talteen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln tuote tallennettu</numerusform>
            <numerusform>%Ln tuotetta tallennettu</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Näytä toivelista</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Poistetaanko tilisi?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Profiilisi, tuotevahtisi, jäsenyytesi ja tilausluettelosi poistetaan pysyvästi. Matkalla olevat tilaukset tulevat silti perille. Tätä ei voi kumota.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Vahvista kirjoittamalla sähköpostiosoitteesi</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Poista tili</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Mallistot</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Suodattimet</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Tyhjennä kaikki suodattimet</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Hae: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Ei mitään tällä nimellä</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Näytä vähemmän</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Näytä kaikki (%Ln)</numerusform>
            <numerusform>Näytä kaikki (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Vähintään</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Enintään</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Näytä tuotteet</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Näytä %Ln tuote</numerusform>
            <numerusform>Näytä %Ln tuotetta</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Sulje suodattimet</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln valittu, %L1 vertailtavissa</numerusform>
            <numerusform>%Ln valittu, %L1 vertailtavissa</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln valittu</numerusform>
            <numerusform>%Ln valittu</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Valitse 2–4 tuotetta</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Valmis</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Valitse</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Uusimmat ensin</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Hinta: halvin ensin</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Hinta: kallein ensin</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Olet nähnyt kaikki (%Ln)</numerusform>
            <numerusform>Olet nähnyt kaikki (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Mallisto: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Avaa %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Valitse koko</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Koko</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Sinulle suositeltu: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Ostoskorissa</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Vaihda</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Jätä pois</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1/%Ln tuote</numerusform>
            <numerusform>%L1/%Ln tuotetta</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Korvattava: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Vastaavaa ei juuri nyt löydy.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Miran valinta</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Sinun lookisi</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Valitse koot, vaihda vähemmän mieluisat ja jätä pois ne, jotka sinulla jo on.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>tuumaa</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Mittasi</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira päättelee niistä kokosi. Mitat tallentuvat keskusteluusi, ja kopio säilyy tällä tietokoneella, kunnes kirjaudut ulos.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Yksikkö</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrinen</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Brittiläinen</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Pituus (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>jalkaa</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Paino (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>paunaa</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>Rinnanympärys (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Vyötärö (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Lantio (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Jätä nämä tyhjiksi, jos et tiedä niitä.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Toivottu istuvuus</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Lähetä Miralle</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Poista tältä tietokoneelta</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Rakenna look tästä</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Valitse koko ja lisää ostoskoriin</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Kirjoita: %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Omat tuotteet · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Yhdistä omiin tuotteisiin</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Sää</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Lisää</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Näytä look: %Ln tuote koossasi</numerusform>
            <numerusform>Näytä look: %Ln tuotetta, kaikki koossasi</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Uusi aihe</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Aiheet…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Päivitä</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Yhdistä omiin tuotteisiin…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Omat mitat…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Sää…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Näytä sivun vieressä</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Ehdotukset</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Lähetä: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Keskustelu: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Nimeä uudelleen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Aiheen nimi</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Poistetaanko ”%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Säilytä</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Aiheet</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Sinä</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Anna omat mitat</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 käyttää ensin näitä ja lisää uutta vain puuttuvan tilalle.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Ei vielä yhdisteltävää</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Ostoskorisi ja toivelistasi tuotteet näkyvät täällä.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln valittu, enempää ei voi</numerusform>
            <numerusform>%Ln valittu, enempää ei voi</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Ostoskorissasi</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Toivelistallasi</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Missä olet? Look sopii päivän säähän.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Pue minut sään mukaan</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Kaupunki</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aseta</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Käytä sijaintiani</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Mihin olet pukeutumassa?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Kerro tilaisuus, lempituotteesi tai budjettisi, niin %1 kokoaa lookin.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Kirjaudu, niin näet tilauksiisi ja tuotevahteihisi liittyvät asiat.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Näytä</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Kaikki</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Järjestelmä</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Asiakaspalvelu</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Ilmoitukset</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Kirjaudu, niin näet ilmoituksesi</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Ei uutta</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Täällä kerrotaan matkalla olevista tilauksista, taas saatavilla olevista tuotteista ja laskeneista hinnoista.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Tilauksiisi ja seuraamiisi tuotteisiin liittyvät asiat näkyvät täällä.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Lukematon</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Merkitse kaikki luetuiksi</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Ilmoitusasetukset</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Arvioitu toimitus: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Tilaus</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Tilattu %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Paketti</numerusform>
            <numerusform>Paketit</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Tuotteet</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Palautukset ja hyvitykset</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Tätä tilausta ei ole täällä</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Uusi tilauksesi näkyy täällä muutaman minuutin kuluttua.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Se voi kuulua toiselle tilille.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Kirjaudu, niin näet tämän tilauksen</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Pakettia voi seurata numerolla ilman tiliä.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Määrä %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Piilotettu</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Näytä tilaus taas</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Piilota tilaus</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Mitkä tilaukset</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Matkalla</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Toimitettu</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Kaikki tilauksesi on piilotettu</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Mitään ei ole matkalla</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Mitään ei ole vielä toimitettu</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Ei palautuksia</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Osa niistä on piilotettu.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Näytä piilotetut tilaukset</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Kaikki tilaukset</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Tilauksesi on tulossa tälle sivulle</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Ei vielä tilauksia</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Täällä näet tilauksesi ja missä ne ovat matkalla luoksesi.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Kirjaudu, niin näet tilauksesi</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Missä ne ovat, mitä niissä on ja miten palautat tuotteen.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Piilotettu tilauksistasi tällä tietokoneella.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Vaihe %L1/%L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Yhteenveto</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Toimitusosoite</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Aloita palautus</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Paketti %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Tätä numeroa ei vielä tunneta</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Voi kestää päivän, ennen kuin kuljetusyhtiö tuntee uuden paketin.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Avaa kuljetusyhtiön sivu</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Kuljetusyhtiö ei ole vielä kertonut siitä mitään.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Paketin vaiheet</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Tilapäisesti poissa käytöstä</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Tämä toiminto on nyt tauolla. Yritä myöhemmin uudelleen.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Poista listalta</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Tämä tuote ei ole saatavilla</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Se voi olla pysyvästi loppuunmyyty, tai sitä ei myydä maassasi (%1).</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Lähetämme sähköpostia, kun hinta laskee</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Ilmoita hinnanlaskusta</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln tuote maksaa vähemmän kuin nähdessäsi sen</numerusform>
            <numerusform>%Ln tuotetta maksaa vähemmän kuin nähdessäsi ne</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Ei vielä seurattavaa</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Ei hinnanlaskuja juuri nyt</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Tallenna tuote tai katso sitä, niin näet täällä, kun se maksaa vähemmän.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Tallentamasi ja katsomasi tuotteet maksavat saman kuin nähdessäsi ne, tai näit ne toisessa valuutassa.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Kuvat</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Kuva %L1/%L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, kuva %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Näytä kaikki</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Ei kiinnosta</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>%Ln päivän jälkeen: %1</numerusform>
            <numerusform>%Ln päivän jälkeen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Kauppa vastasi: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Arvostelut</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Lisää arvosteluja</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Kuvaus</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Kohokohdat</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Tiedot</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Kysymyksiä ja vastauksia</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Puhelin</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Syntymäpäivä</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Valitse päivä</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Sähköposti</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Osoite, jolla kirjaudut</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Maa</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Tallenna</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Hylkää muutokset</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Tallennettu</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Asiakkuus alkoi: %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Uutiskirjeet</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Sähköpostitse</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Uutuudet ja tarjoukset osoitteeseen %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Tekstiviestillä</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Lisää ensin puhelinnumerosi yllä</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Kirjaudu, niin näet profiilisi</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Nimesi, puhelinnumerosi ja mitä saamme lähettää sinulle.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Tutustu</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Katsele hieman ympärillesi, niin löydät täältä yhteensopivaa.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Viimeksi katsotut</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Tyhjennä kaikki</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Ei vielä selailuhistoriaa</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Katsomasi tuotteet kertyvät tänne, jotta löydät ne uudelleen.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Kirjaudu, niin lähetämme sähköpostia, kun se on taas saatavilla.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Sähköposti lähtee osoitteeseen %1. Paina uudelleen, jos et enää halua sitä.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Sähköposti lähtee osoitteeseen %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Suurenna kuva %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln tulos haulla ”%1”</numerusform>
            <numerusform>%Ln tulosta haulla ”%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Mitä etsit?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Ei tuloksia haulla ”%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Tarkista kirjoitusasu, kokeile väljempää sanaa tai selaa uutuuksia.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Näillä suodattimilla ei löydy mitään</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Poista suodatin tai pari, niin näet enemmän haulla ”%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Kirjaudutaanko ulos?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Ostoskorisi ja toivelistasi säilyvät tällä tietokoneella. Tilaukset ja jäsenyys ovat taas käytössä, kun kirjaudut uudelleen.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Kokotaulukko</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Kokojen yksikkö</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Järjestys: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Työkalut</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Työkaluja ei ole juuri nyt.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Paketin tai tilauksen numero</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Se on sähköpostissa, jossa kerrottiin lähetyksestä.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Emme tunne tätä numeroa. Tarkista se tai yritä huomenna uudelleen: uuden paketin rekisteröinti voi kestää päivän.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Seuraa</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Tämä sivu ei ole saatavilla</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Se on ehkä siirretty tai kuuluu toiseen versioon.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Paina tuotteen sydäntä, niin se odottaa sinua täällä. Seuraamme myös sen hintaa.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Tilisi: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Etsitään tiliäsi…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Kukaan ei ole kirjautunut</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Tilauksiin, tuotevahteihin ja jäsenyyteen tarvitaan tili. Selaamiseen ja ostamiseen ei.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Ulkoasu</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Värit</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Työpöydän mukaan</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Vaihtuu työpöydän mukana vaaleaksi tai tummaksi</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Vaalea</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tumma</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Työpöydän ikkunakehys</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Otsikkopalkki välilehtien yllä kuten muissa ikkunoissa</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tiedosto</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Näytä</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Siirry</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ohje</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Puhelun tekstitys</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Sano, mitä etsit tai mihin sitä tarvitset.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Peruuta puhelu</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Jatka chatissa, niin voit myös kirjoittaa</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Puhelu: %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Puhelun kesto: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Näytä chatissa</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Pienennä</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Sulje ja jatka chatissa</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Lopeta puhelu ja sulje</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Vain kuva</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Suurenna</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Näytä puhelu: %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Puhelu: %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Laajenna koko sivuksi</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Seuraa sitä milloin vain kohdassa Tilaukset.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Lataa sivu uudelleen</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Turvallinen maksu Shopifyssa  ·  Ostoskorisi säilyy ennallaan</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Tämän sivun linkki vie pois kassalta osoitteeseen %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Avaa selaimessa</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Kassaa ei voi näyttää tässä</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Jatka selaimessa</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREETin määritykset puuttuvat</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Suorita scripts/sync-secrets.sh projektikansiossa ja käännä sitten uudelleen.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Lopeta</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Selailuhistoria</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Yleiset</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Maa ja valuutta</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Kaupan kieli</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Avaa tuotteet ruudukon vieressä</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Leveissä ikkunoissa tuote näkyy löytöpaikkansa vieressä</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Mittojen yksiköt</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Senttimetrit ja kilogrammat</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Tuumat ja paunat</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Nimetön sivu</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Keskeytä kuvaesitys</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Toista kuvaesitys</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Välilyönti</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Loitonna</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Lähennä</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Tätä kuvaa ei voitu ladata</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Markkina-alue ja kieli: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Markkina-alue ja kieli</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Kieli</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Hae kieliä</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Hae maita ja valuuttoja</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Kielet</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Maat</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Haulla ”%1” ei löydy kieliä</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Haulla ”%1” ei löydy maita</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Avaa</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Ikkunassa</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Palkki ikkunan yläreunassa muutaman sekunnin ajan.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Työpöydällä</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Siellä, missä työpöytäsi näyttää sovellusten ilmoitukset, myös kun ikkunoita ei ole auki.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Äänen kanssa</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Määrä sovelluksen kuvakkeessa</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Kuinka monta on lukematta.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Näytä esimerkki</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Mistä ilmoitetaan</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Ei enää suositella tällä tietokoneella.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Sivupaneeli</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Avaa uudessa välilehdessä</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Sulje sivupaneeli</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Sivupaneelin leveys</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Auta kauppaa valitsemaan, mitä näyttää</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Kertoo kaupalle ilman nimeäsi, mitä sivuja ja tuotteita katsotaan, lisätään ostoskoriin ja ostetaan ja milloin sovellus sulkeutui odottamatta. Kun tämä on pois päältä, vain välttämätön lähetetään.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Joka tapauksessa</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Välttämätöntä on se, mitä pyydät</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Avaamasi sivut, hakusi, ostoskorisi ja tilauksesi täytyy välittää kaupalle.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Talteen panemasi pysyy tällä tietokoneella</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Toivelistasi, katsomasi tuotteet ja hakusi, kunnes tyhjennät ne.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Kirjautumisesi on avainrenkaassa</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Jos sellaista ei ole, se on tiedostossa, jonka vain sinä voit lukea. Se päättyy 60 päivän kuluttua ja aina, kun kirjaudut ulos.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Kuvakaappaus tallennettu</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Kuvakaappausta ei voitu tallentaa</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Tarkista, että Kuvat-kansiossa on tilaa.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Näytä kansio</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Hae tai liitä linkki</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Hae kuvalla…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ääni</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Päivitykset</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Osiot</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Jatka palvelulla %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Kirjaudutaan…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 avautuu selaimeesi. Kirjaudu siellä, niin olet kirjautunut täällä.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopioitu</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Kopioi osoite</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Jos selain ei avautunut itsestään</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Eikö täällä tapahtunut mitään?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Liitä linkki, johon selaimesi päätyi</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Sen alussa on ”wrenfieldstore://”. Jotkin selaimet näyttävät sen osoiterivillä.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Viimeistele kirjautuminen</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Luo tilisi</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Kirjaudu tilillesi</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Kirjautumistavat</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Koodi sähköpostiin</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Salasana</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Lähetimme koodin osoitteeseen %1. Sen saapuminen voi kestää hetken.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Lähetämme ensin koodin sähköpostiisi varmistaaksemme, että osoite on sinun.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Lähetämme sähköpostiisi kirjautumiskoodin. Et tarvitse salasanaa.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Vahvistuskoodi</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Lähetä uudelleen %L1 s kuluttua</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Lähetä uudelleen</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Lähetä koodi uudelleen</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Salasana (vähintään 6 merkkiä)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nimi (valinnainen)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Unohditko salasanan? Kirjaudu sähköpostiin tulevalla koodilla</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Lähetä koodi sähköpostiini</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>tai jatka palvelulla</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofoni</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Pysäytä</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Kokeile</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Lopeta mikrofonin kuuntelu</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Kokeile mikrofonia</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Äänenvoimakkuus</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Se on käytössä puhelussa.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Sano jotain: palkki seuraa ääntäsi. Mitään ei lähde tältä tietokoneelta.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Näyttää, kuinka kovaa puhut. Mitään ei lähde tältä tietokoneelta.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Kaiutin</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>Puhelun aikana %1 mykistää mikrofonin, olitpa missä tahansa.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M mykistää mikrofonin puheluikkunassa.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Linkki</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Hae ”%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Viimeisimmät</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Katsotut ja tallennetut</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Sopivaa tuotetta ei löydy. Enter hakee kaikista.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>valitse</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>sulje</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Poista ”%1” viimeisimmistä hauista</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Kuva: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Avautuu selaimessa</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Kirjoita viesti</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Liitä kuva tai PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Kuvat ja PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Pudota kuva tai PDF tähän</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Miten voimme auttaa?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Kysy tilauksesta, palautuksesta tai koostasi. Kuvistakin on apua.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Missä tilaukseni on?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Haluaisin palauttaa tuotteen</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Minkä koon valitsen?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Ladataan</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Sulje %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Uusi välilehti oikealle</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Irrota välilehti</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Kiinnitä välilehti</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Siirrä välilehti uuteen ikkunaan</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Avaa suljettu välilehti uudelleen</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Sulje välilehti</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Sulje muut välilehdet</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Laajenna sivupalkki</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Tiivistä sivupalkki</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Välilehdet</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Uusi välilehti</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Takaisin</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Eteenpäin</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Valikko</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Poistettu listalta: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Päivitä</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Viimeksi tarkistettu: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Ei vielä tarkistettu</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Tämä LOOMSTREET ei voi päivittää itseään.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET etsii uusia versioita itse.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET ei toistaiseksi etsi uusia versioita itse.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Uudet versiot tulevat sieltä, mistä sait ohjelman. Voit silti tarkistaa ne täällä.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Käynnistyessään ja kuuden tunnin välein. Löytynyt versio ladataan taustalla ja asennetaan, kun lopetat ohjelman. Jos se ei onnistu, saat siitä tiedon.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Kauppa on keskeyttänyt sen. Voit silti tarkistaa täällä.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Tarkista päivitykset…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versio %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Mitä uutta</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ohita tämä versio</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Pienennä</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Palauta</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Suurenna</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Sulje ikkuna</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Suojattu yhteys osoitteeseen %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Yhteys ei ole suojattu</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Tilisi on poistettu.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Sinut kirjattiin ulos ennen kuin tilisi ehdittiin poistaa. Poista se kirjautumalla uudelleen.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Toimitus</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Ilmainen</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Verot</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln paketti</numerusform>
            <numerusform>%Ln pakettia</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Vahvistettu</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Pakattu</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Peruttu</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Käsittelyssä</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Odottaa kuljetusyhtiötä</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Jakelussa</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Toimitusongelma</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Palautusta pyydetty</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Palautus hyväksytty</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Hyvitetty</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Palautus hylätty</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 ja %Ln muu</numerusform>
            <numerusform>%1 ja %Ln muuta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Käytä enintään yhtä merkkiä.</numerusform>
            <numerusform>Käytä enintään %Ln merkkiä.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Anna puhelinnumero, esimerkiksi %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Anna päivämäärä, esimerkiksi %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Anna mennyt päivämäärä.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Jotain antamastasi ei hyväksytty. Tarkista se ja yritä uudelleen.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Anna toimiva sähköpostiosoite.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Koodi on väärä tai vanhentunut. Pyydä uusi.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Liian monta yritystä. Odota hetki ja yritä uudelleen.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Sähköposti ja salasana eivät täsmää. Yritä uudelleen tai kirjaudu sähköpostiin tulevalla koodilla.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Tämä kirjautumistapa ei ole vielä käytössä.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Tällä tilillä ei ole sähköpostiosoitetta, jota voimme käyttää. Kokeile toista tapaa.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Kirjautuminen peruttiin.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Kirjautuminen epäonnistui. Yritä uudelleen.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Anna koodin kuusi numeroa.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Valitse vähintään 6 merkin salasana.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Anna salasanasi. Siinä on vähintään 6 merkkiä.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Tämä ei ole linkki, johon kirjautumisesi päätyi. Sen alussa on ”wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREETin ohjekeskus</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Sopimukset</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Uusi ikkuna</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Kiinnitä tai irrota välilehti</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Siirrä välilehteä taaksepäin</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Siirrä välilehteä eteenpäin</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Avaa sivupaneelin tuote koko sivulla</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Avaa sivupaneelin tuote uudessa välilehdessä</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Ota kuvakaappaus</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Koko näyttö</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Siirry osion etusivulle</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Seuraava välilehti</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Edellinen välilehti</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Suositellut</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Uusimmat</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Hinta: halvin ensin</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Hinta: kallein ensin</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Myydyimmät</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Tänään</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Eilen</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Naiset</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Miehet</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luksus</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Laukut</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Asusteet</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Vähintään %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Enintään %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Uutuus</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Vain yksi jäljellä</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Vain %Ln jäljellä</numerusform>
            <numerusform>Vain %Ln jäljellä</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Osuvimmat</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Tätä tuotetta ei voi palauttaa</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Tarkista koko ja väri ennen tilaamista</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Tehty sinulle</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Voi palauttaa vain, jos tuote on viallinen</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Valmistetaan tilauksesta, joten varaa enemmän aikaa</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>30 päivän kuluessa, käyttämättömänä ja kaikkine osineen</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Säilytä laatikko, suojapussi ja paperit</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>30 päivän kuluessa, pohjissa ei jälkiä, omassa laatikossaan</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Kokeile niitä ensin sisätiloissa</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>30 päivän kuluessa, käyttämättömänä, laput paikallaan</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Valitse ensin: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln tuote ostoskorissasi</numerusform>
            <numerusform>%Ln tuotetta ostoskorissasi</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Koodia ei voitu käyttää. Yritä uudelleen.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>”%1” ei koske ostoskorisi tuotteita.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Sait ILMAISEN toimituksen kaikkialle maailmaan</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Vielä %1, niin saat ILMAISEN toimituksen kaikkialle maailmaan</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Tilaus tehty. Se näkyy kohdassa Tilaukset muutaman minuutin kuluttua.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Tilaus %1 tehty. Se näkyy kohdassa Tilaukset muutaman minuutin kuluttua.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln tuote  ·  vahvistus lähetetty sähköpostiisi</numerusform>
            <numerusform>%Ln tuotetta  ·  vahvistus lähetetty sähköpostiisi</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Sivun lataaminen kesti liian kauan.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Sivu vie pois kassalta.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Sivu lakkasi toimimasta.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Kassaa ei voitu avata. Yritä uudelleen.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Nyt %1 halvempi</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>töihin</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>treffeille</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>juhliin</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>häihin</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>lomalle</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>matkalle</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>arkeen</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>viikonloppuun</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>kouluun</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>työhaastatteluun</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>valmistujaisiin</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>festareille</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>rannalle</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>iltamenoihin</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>brunssille</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>salille</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>muodollisiin tilaisuuksiin</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Uutuudet</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Suosikkiesi perusteella</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Uutta tällä viikolla</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Uutta tällä viikolla</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Käsin valittu</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Uutta tällä viikolla · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Suosikkiesi perusteella</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Kaltaistesi asiakkaiden suosikki</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Selailusi perusteella</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Nyt pinnalla</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Vastaa hakuasi: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Sinun makuusi: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Sopii %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Tyylivalinta: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>suloinen</translation>
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
        <translation>elegantti</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalistinen</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romanttinen</translation>
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
        <translation>goottilainen</translation>
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
        <translation>ranskalainen</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>särmikäs</translation>
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
        <translation>rento</translation>
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
        <translation>festari</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>klassinen</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sporttinen</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>tyylikäs</translation>
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
        <translation>korealainen</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japanilainen</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>uuskiinalainen</translation>
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
        <translation>hillitty luksus</translation>
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
        <translation>seksikäs</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>söpö</translation>
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
        <translation>feminiininen</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgyyni</translation>
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
        <translation>muodollinen</translation>
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
        <translation>Etusivu</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Ale</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Saapuneet</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Liian monta yritystä. Odota hetki ja yritä uudelleen.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Istuntosi on vanhentunut. Kirjaudu uudelleen.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Anna sähköpostiosoitteesi.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Osa tiedoista ei näytä oikeilta. Tarkista ne ja yritä uudelleen.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREETissä on juuri nyt ongelmia. Yritä pian uudelleen.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Se ei onnistunut. Yritä uudelleen.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Saatiin odottamaton vastaus. Yritä uudelleen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREETiin ei saatu yhteyttä. Yritä uudelleen.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Sovelluksen määritykset puuttuvat.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Pyyntö kesti liian kauan. Yritä uudelleen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln muu ilmoitus odottaa Saapuneissa.</numerusform>
            <numerusform>%Ln muuta ilmoitusta odottaa Saapuneissa.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Järjestelmäilmoitukset</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Uutta tilistä ja palvelusta</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Uutta tilauksista</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Tilaus vahvistettu, lähetetty ja toimitettu</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Hyvitykset ja palautukset</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Maksetut hyvitykset ja uutta palautuksista</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Asiakaspalvelun vastaukset</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Kun asiakaspalvelu vastaa sinulle</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Vahtimasi tuotteet ovat taas saatavilla</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Tallennetut tai katsotut tuotteet halpenevat</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Vessa-yhteisön tapahtumat</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Tykkäykset, kommentit, uudet seuraajat ja viestit</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Tason muutokset, pisteet ja uudet kupongit</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Kampanjat ja tapahtumat</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Alet, uudet lanseeraukset ja kaupan tapahtumat</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Lähetti liitteen</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Tilaus tehty</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Tilauksesi on vahvistettu. Se näkyy kohdassa Tilaukset muutaman minuutin kuluttua.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Tilaus %1 on vahvistettu. Se näkyy kohdassa Tilaukset muutaman minuutin kuluttua.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET ei voinut päivittää itseään</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Asenna uusi versio levykuvasta napsauttamalla ikkunan yläreunassa Päivitä.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Ilmoituksen esikatselu</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Uutta tilauksista ja asiakaspalvelun vastaukset näkyvät täällä.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Vaatekaappi</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Kaikki omat vaatteesi yhdessä paikassa</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Asustudio</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Yhdistele tuotteita ja näe ne kokonaisuutena</translation>
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
        <translation>Talteen panemasi asut</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Asuideoita</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Uusia tapoja käyttää vaatekaappisi sisältöä</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Kokoneuvonta</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Mittasi ja niihin sopiva koko</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Kuvahaku</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Etsi tuote kuvan avulla</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Vertaile</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Enintään neljä tuotetta rinnakkain</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Tarkistetaan päivityksiä…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Kaikki on ajan tasalla</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Ladataan LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Tarkistetaan latausta…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Asennetaan LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Päivityksiä ei voitu tarkistaa</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Päivitystä ei voitu ladata</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Valmis asennettavaksi</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Asenna päivitys</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 on valmis asennettavaksi</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 on uusin versio.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET sulkeutuu, ja uusi versio tulee tilalle.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Ladattu. Viimeistele käynnistämällä uudelleen, tai se asennetaan, kun seuraavan kerran lopetat ohjelman.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Vedä LOOMSTREET juuri avautuneessa ikkunassa Ohjelmat-kansioon ja valitse Korvaa. Avaa sitten LOOMSTREET uudelleen.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET ei voinut korvata itseään tällä tietokoneella. Asenna uusi versio levykuvasta. Se vie muutaman sekunnin.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Versiotasi ei enää tueta.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Päivitys on ladattu. Viimeistele käynnistämällä LOOMSTREET uudelleen, tai se asennetaan, kun seuraavan kerran lopetat ohjelman.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Päivityksiä ei voitu tarkistaa. Tarkista yhteys ja yritä uudelleen.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Lataus epäonnistui (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Lataus jäi kesken tai muuttui matkalla. Yritä uudelleen.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Ladattua tiedostoa ei voitu lukea.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Latauksessa ei ole LOOMSTREETin allekirjoitusta, joten sitä ei avattu.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Lataa ja asenna</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Päivitä käynnistämällä uudelleen</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Avaa levykuva</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Verkkoyhteyttä ei näytä olevan.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Miran vastaus kesti liian kauan.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Lähetät viestejä liian nopeasti. Odota ensin hetki.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Tätä viestiä ei voitu lähettää tällaisena.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREETissä on juuri nyt ongelmia.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREETiin ei saatu yhteyttä.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Valitse koot: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Myyty sillä välin loppuun, ei lisätty: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Kassaa ei voitu avata. Tarkista yhteys ja yritä uudelleen.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Pituus tai paino ei näytä oikealta. Tarkista luvut ja yksiköt.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Jokin mitoista ei näytä oikealta. Tarkista luku tai jätä se tyhjäksi.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Väljä</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Istuva</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Normaali</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Auta yhdistämään tämä: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Tätä viestiä ei ole vahvistettu. Voit yrittää uudelleen.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Keskustelu on ajan tasalla</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira vastaa</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira vastaa. Voit lähettää nämä hetken kuluttua.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Aiheet tallennetaan tälle tietokoneelle. Mira muistaa, mistä olette puhuneet.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Auta minua löytämään jotain</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Tee asu vaatekaapistani</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Mitä puen tänä iltana?</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET ei saa nähdä sijaintiasi. Kirjoita sen sijaan kaupunkisi.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Sijaintiasi ei löytynyt. Kirjoita sen sijaan kaupunkisi.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Kaupunkia ei tunneta. Kokeile suurempaa kaupunkia lähellä.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira ei voi juuri nyt vastata. Yritä hetken kuluttua uudelleen.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira on toisessa puhelussa. Yritä minuutin kuluttua uudelleen.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Linja pätki. Sanoisitko uudelleen?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Yhteys katkesi. Soita uudelleen ja jatka juttua.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Mikrofonin käyttö on estetty. Salli se kohdassa Järjestelmäasetukset › Tietosuoja ja turvallisuus › Mikrofoni ja soita sitten uudelleen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Mikrofonia ei voitu käynnistää. Tarkista, että mikrofoni on liitetty, ja soita uudelleen.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Mykistä mikrofoni puhelun aikana</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Lisätty ostoskoriisi</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Lisätty ostoskoriisi: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Lisääminen ei onnistunut. Kokeile tuotesivulla.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Mennään sinne…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Avataan: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Järjestelmän oletus</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ei yhdistetty</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Ulkovaatteet</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Yläosat</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Alaosat</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Mekot</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Kengät</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Pikkulisät</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Leutoa</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Aurinkoista</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Puolipilvistä</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Pilvistä</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Sumuista</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Tihkusadetta</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Sateista</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Lumisadetta</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Sadekuuroja</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Ukkosta</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Tätä tiedostoa ei enää ole.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Tätä tiedostoa ei voitu lukea.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Tämä tiedosto on tyhjä.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Tämä tiedosto on suurempi kuin 10 Mt. Valitse pienempi.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Vain kuvia ja PDF-tiedostoja voi lähettää.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Tämä viesti ei ehkä ole mennyt perille.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Piilotetut</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Matkalla</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Toimitetut</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Kirjoita asiakaspalveluun</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Keskustelu asiakaspalvelun kanssa</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>”%1”</translation>
    </message>
</context>
</TS>
