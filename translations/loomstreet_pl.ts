<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Jesteś tutaj</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Otwórz pełną stronę</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Wysyłanie…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Pokaż mniej</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Pokaż wszystko</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter wysyła, Shift+Enter zaczyna nowy wiersz</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Wyślij</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Usuń: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Wcześniej</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Wróć do wyboru roku</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Rozwinięte</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Zwinięte</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Do najnowszych</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln nowa wiadomość</numerusform>
            <numerusform>%Ln nowe wiadomości</numerusform>
            <numerusform>%Ln nowych wiadomości</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Wygląda na to, że nie masz połączenia z internetem. Sprawdź je i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Ukryj hasło</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Pokaż hasło</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, wcześniej %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Wyprzedane</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Trwa operacja</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Usuń z ulubionych</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Dodaj do ulubionych</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, wyprzedane</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, polecamy ci</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Ocena %L1 na 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Ocena %L1 na 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Mniej</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Więcej</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Twoje konto</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Wyloguj się</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Twoja szafa zawsze z tobą</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Wszystko tutaj można oglądać i kupować bez konta. Z kontem sklep wie, gdzie są twoje paczki i na co czekasz.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Zaloguj się</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Załóż konto</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Zamówienia w jednym miejscu</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Gdzie jest każda paczka i zwroty bez szukania paragonu</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Wiadomość, gdy to ważne</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Wrócił twój rozmiar albo spadła cena</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Klub i kupony</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Punkty, poziomy i co ci dają</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Kasa, która cię zna</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Twój adres już tam jest</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Obsługa klienta</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Zamówienia, zwroty i rozmiary</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Zamówienia</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>W drodze i kupione wcześniej</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Śledź paczkę</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Po jej numerze lub numerze zamówienia</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Zwroty</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Odeślij zakup</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Dla ciebie</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Ulubione</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Nic tu jeszcze nie ma</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln rzecz</numerusform>
            <numerusform>%Ln rzeczy</numerusform>
            <numerusform>%Ln rzeczy</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alerty</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Znowu dostępne i niższe ceny</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Klub</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Twój poziom i punkty</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kupony</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Do wykorzystania w kasie</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Bez konta</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Imię, urodziny i newslettery</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Prywatność</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Czego sklep się o tobie dowiaduje</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Zapisane na tym komputerze</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Usuń konto…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Baza kluczy nie odpowiada</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>To w niej bezpiecznie leżą dane logowania i bez niej nikt się nie zaloguje. Odblokuj ją i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Znowu dostępne</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Obniżka ceny</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Już w sprzedaży</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Teraz taniej</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>Cena przy zapisie: %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Wyłącz ten alert</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln alert</numerusform>
            <numerusform>%Ln alerty</numerusform>
            <numerusform>%Ln alertów</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Napiszemy na adres %1, gdy rzecz wróci albo jej cena spadnie.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Nie masz jeszcze alertów</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Przy rzeczy wyprzedanej w twoim rozmiarze naciśnij „Powiadom, gdy wróci”. Przy każdej innej – „Powiadom o obniżce ceny”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Nowości</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Zaloguj się, aby zobaczyć alerty</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Damy znać, gdy rzecz wróci w twoim rozmiarze albo będzie tańsza.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Nie będziemy pisać w tej sprawie.</numerusform>
            <numerusform>Nie będziemy pisać w ich sprawie.</numerusform>
            <numerusform>Nie będziemy pisać w ich sprawie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln rzecz</numerusform>
            <numerusform>%1, %Ln rzeczy</numerusform>
            <numerusform>%1, %Ln rzeczy</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Projektanci</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln projektant</numerusform>
            <numerusform>%Ln projektantów</numerusform>
            <numerusform>%Ln projektantów</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Znajdź projektanta</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Litery</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Inni projektanci</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Projektanci na %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Żaden projektant nie pasuje do „%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Sprawdź pisownię albo przejrzyj całą listę.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Pokaż wszystkich projektantów</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Na razie nic tu nie ma</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Nowe rzeczy pojawiają się co tydzień.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Odkrywaj</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln opinia</numerusform>
            <numerusform>%Ln opinie</numerusform>
            <numerusform>%Ln opinii</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>Sprzedano: %Ln</numerusform>
            <numerusform>Sprzedano: %Ln</numerusform>
            <numerusform>Sprzedano: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Przedsprzedaż</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Najczęściej wybierane: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Z czym to nosić?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porównaj</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Obok rzeczy zapisanych lub oglądanych</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>DARMOWA dostawa na cały świat</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Przy zakupach od %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Warto wiedzieć</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Cło wliczone w cenę</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Koszt dostawy obliczamy w kasie</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Napiszemy, gdy wróci</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Powiadom, gdy wróci</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Dodano</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Do koszyka</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Naciśnij, aby zrezygnować</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Otwieramy kasę…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Kup teraz</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Rozmowa: %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Otwórz w osobnym oknie</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Zakończ rozmowę</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Pokaż rozmowę</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Zadzwoń: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Zadzwoń ponownie</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofon jest włączony</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofon jest wyciszony</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Łączenie…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Myśli</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Mówi</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Wyciszono</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Słucha</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Rozmowa zakończona</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Wyłącz wyciszenie</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Kod rabatowy</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Nie udało się wczytać koszyka</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Twoje produkty są bezpieczne. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Twój koszyk jest pusty</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Tu pojawią się dodane produkty.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Kontynuuj zakupy</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Usunięto z koszyka: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Poprzedni koszyk wygasł. Był w nim %Ln produkt.</numerusform>
            <numerusform>Poprzedni koszyk wygasł. Były w nim %Ln produkty.</numerusform>
            <numerusform>Poprzedni koszyk wygasł. Było w nim %Ln produktów.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Liczba: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Usuń z koszyka</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ukryj</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Koszyk</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Koszyk</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Pokaż w panelu bocznym</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Wartość produktów</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Rabat</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Razem</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Cło wliczone w cenę · Koszt dostawy obliczamy w kasie</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Kasa</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Dokończ płatność w oknie kasy. Koszyk zostaje bez zmian.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Niedostępne</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Kolekcja</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln nowość z ostatnich 30 dni</numerusform>
            <numerusform>%Ln nowości z ostatnich 30 dni</numerusform>
            <numerusform>%Ln nowości z ostatnich 30 dni</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Ta kolekcja jest niedostępna</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Mogła zmienić nazwę albo nie jest sprzedawana w tym kraju: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Żaden produkt nie pasuje do filtrów</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Usuń filtr, aby zobaczyć więcej.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Dopełnij stylizację</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Rzeczy, które do tego pasują</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Podoba się też</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Osobom, które oglądały tę rzecz</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Może ci się też spodobać</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Dodaj rzeczy do porównania</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Dodaj rzecz</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Z ulubionych i oglądanych</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Zapisuj rzeczy albo je oglądaj, a potem dodaj tutaj.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Porównaj: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Rozmiary</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Skład</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Usuń z porównania</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Niedostępne w twoim kraju.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>nie podano</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Rozmiary: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Wróć na początek</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Co noszą inni</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Rozejrzyj się</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Obserwowane</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Wieści od twoich projektantów</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Zobacz nowości</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Szafa</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Co mam dziś założyć?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Otwórz szafę</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Twoje zamówienia i alerty</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Twój klub</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Zobacz, co zyskujesz</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Gdzie jest moja paczka?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Zamówienie %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Zobacz zamówienie</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Obniżki cen</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Twoje rzeczy są teraz tańsze</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Zachowaj, co kochasz</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln zapisana rzecz</numerusform>
            <numerusform>%Ln zapisane rzeczy</numerusform>
            <numerusform>%Ln zapisanych rzeczy</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Zobacz ulubione</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Usunąć konto?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Profil, alerty, członkostwo w klubie i lista zamówień znikną na zawsze. Zamówienia w drodze i tak dotrą. Tego nie można cofnąć.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Aby potwierdzić, wpisz swój adres e-mail</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Usuń konto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Kolekcje</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Wyczyść wszystkie filtry</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Znajdź: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Nic o tej nazwie</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Pokaż mniej</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Pokaż wszystkie (%Ln)</numerusform>
            <numerusform>Pokaż wszystkie (%Ln)</numerusform>
            <numerusform>Pokaż wszystkie (%Ln)</numerusform>
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
        <translation>Pokaż rzeczy</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Pokaż %Ln rzecz</numerusform>
            <numerusform>Pokaż %Ln rzeczy</numerusform>
            <numerusform>Pokaż %Ln rzeczy</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Zamknij filtry</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>Wybrano: %Ln, można porównać %L1</numerusform>
            <numerusform>Wybrano: %Ln, można porównać %L1</numerusform>
            <numerusform>Wybrano: %Ln, można porównać %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>Wybrano: %Ln</numerusform>
            <numerusform>Wybrano: %Ln</numerusform>
            <numerusform>Wybrano: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Wybierz od dwóch do czterech rzeczy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Od najnowszych</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Cena: od najniższej</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Cena: od najwyższej</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>To już wszystko: %Ln rzecz</numerusform>
            <numerusform>To już wszystko: %Ln rzeczy</numerusform>
            <numerusform>To już wszystko: %Ln rzeczy</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Kolekcja: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Otwórz: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Wybierz rozmiar</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Polecamy ci: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>W koszyku</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Zamień</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Pomiń</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 z %Ln rzeczy</numerusform>
            <numerusform>%L1 z %Ln rzeczy</numerusform>
            <numerusform>%L1 z %Ln rzeczy</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Zamiast: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Na razie nie ma nic podobnego.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira poleca</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Twoja stylizacja</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Wybierz rozmiary, zamień to, co podoba ci się mniej, pomiń to, co już masz.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>cale</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Twoje wymiary</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Na ich podstawie Mira dobiera twoje rozmiary. Trafiają do waszej rozmowy, a kopia zostaje na tym komputerze, dopóki się nie wylogujesz.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Jednostki</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metryczne</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperialne</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Wzrost (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>stopy</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Waga (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>funty</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>Biust (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Talia (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Biodra (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Nie znasz ich? Zostaw puste.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Ulubiony krój</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Wyślij stylistce</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Usuń z tego komputera</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Zbuduj wokół tego stylizację</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Wybierz rozmiar i dodaj do koszyka</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Wiadomość do: %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Stylizacja z: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Moje rzeczy · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Stylizacja z moich rzeczy</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Pogoda</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Więcej</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Zobacz stylizację: %Ln rzecz w twoim rozmiarze</numerusform>
            <numerusform>Zobacz stylizację: %Ln rzeczy, każda w twoim rozmiarze</numerusform>
            <numerusform>Zobacz stylizację: %Ln rzeczy, każda w twoim rozmiarze</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nowy temat</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Tematy…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Stylizacja z moich rzeczy…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Moje wymiary…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Pogoda…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Pokaż obok strony</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Podpowiedzi</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Wyślij: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Rozmowa: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Nazwa tematu</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Usunąć „%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Zachowaj</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Tematy</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Ty</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Podaj moje wymiary</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 zacznie od nich, a nowe rzeczy doda tylko tam, gdzie czegoś brakuje.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Na razie nie ma z czego tworzyć</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Tu pojawią się rzeczy z koszyka i ulubionych.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>Wybrano %Ln – więcej się nie da</numerusform>
            <numerusform>Wybrano %Ln – więcej się nie da</numerusform>
            <numerusform>Wybrano %Ln – więcej się nie da</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>W twoim koszyku</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>W twoich ulubionych</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Gdzie jesteś? Stylizacja będzie pasować do pogody.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Stylizacja na tę pogodę</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Miasto</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ustaw</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Użyj mojej lokalizacji</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Na jaką okazję się ubierasz?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Opowiedz o okazji, ulubionej rzeczy albo budżecie, a %1 ułoży stylizację.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Zaloguj się, aby zobaczyć wiadomości o zamówieniach i alertach.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>System</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>System</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Obsługa klienta</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Powiadomienia</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Zaloguj się, aby zobaczyć powiadomienia</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Nic nowego</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Tu dowiesz się o zamówieniach w drodze, rzeczach znowu dostępnych i niższych cenach.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Tu znajdziesz wszystko o zamówieniach i obserwowanych rzeczach.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Nieprzeczytane</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Oznacz wszystkie jako przeczytane</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Ustawienia powiadomień</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Przewidywana dostawa: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Zamówienie</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Data zamówienia: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Paczka</numerusform>
            <numerusform>Paczki</numerusform>
            <numerusform>Paczki</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Rzeczy</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Zwroty</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Tego zamówienia tu nie ma</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Nowe zamówienie pojawi się tu za kilka minut.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Może należeć do innego konta.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Zaloguj się, aby zobaczyć to zamówienie</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Paczkę można śledzić po numerze także bez konta.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Liczba: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ukryte</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Pokaż zamówienie ponownie</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Ukryj zamówienie</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Które zamówienia</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>W drodze</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Dostarczone</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Wszystkie twoje zamówienia są ukryte</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Nic nie jest w drodze</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Nic jeszcze nie dostarczono</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Brak zwrotów</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Niektóre z nich są ukryte.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Pokaż ukryte zamówienia</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Wszystkie zamówienia</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Twoje zamówienie zaraz tu będzie</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Nie masz jeszcze zamówień</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Tu zobaczysz, co jest zamówione i gdzie jest teraz.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Zaloguj się, aby zobaczyć zamówienia</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Gdzie są, co w nich jest i jak coś odesłać.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Ukryte na liście zamówień na tym komputerze.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Krok %L1 z %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Adres dostawy</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Zgłoś zwrot</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Paczka %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Nikt jeszcze nie zna tego numeru</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Nowa paczka bywa widoczna u przewoźnika dopiero po jednym dniu.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Otwórz stronę przewoźnika</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Przewoźnik nic jeszcze o niej nie przekazał.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Historia paczki</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Chwilowo niedostępne</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Ta funkcja jest na razie wstrzymana. Zajrzyj tu później.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Usuń z listy</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Ta rzecz jest niedostępna</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Może być wyprzedana na dobre albo nie jest sprzedawana w tym kraju: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Napiszemy, gdy będzie taniej</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Powiadom o obniżce ceny</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln rzecz jest tańsza niż wtedy, gdy ją oglądano</numerusform>
            <numerusform>%Ln rzeczy są tańsze niż wtedy, gdy je oglądano</numerusform>
            <numerusform>%Ln rzeczy jest tańszych niż wtedy, gdy je oglądano</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Na razie nie ma czego śledzić</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Teraz nie ma obniżek cen</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Zapisz rzecz albo ją obejrzyj, a tu zobaczysz, gdy stanieje.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Zapisane i oglądane rzeczy kosztują tyle, co w chwili oglądania, albo ich cena była w innej walucie.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Final Sale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Zdjęcie %L1 z %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, zdjęcie %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Zobacz wszystko</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Nie interesuje mnie</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Po %Ln dniu: %1</numerusform>
            <numerusform>Po %Ln dniach: %1</numerusform>
            <numerusform>Po %Ln dniach: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Odpowiedź sklepu: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Opinie</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Więcej opinii</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Najważniejsze cechy</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Pytania i odpowiedzi</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Imię</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Urodziny</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Wybierz datę</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Adres, którym się logujesz</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Kraj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Odrzuć zmiany</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Zapisano</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Z nami od %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Newslettery</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>E-mailem</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Nowości i oferty na adres %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>SMS-em</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Wymaga numeru telefonu powyżej</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Zaloguj się, aby zobaczyć profil</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Twoje imię, telefon i to, co możemy ci wysyłać.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Odkryj</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Rozejrzyj się trochę, a znajdziesz tu to, co do tego pasuje.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Ostatnio oglądane</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Wyczyść wszystko</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Nic jeszcze nie oglądano</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Tu zbierają się oglądane rzeczy, żeby łatwo było do nich wrócić.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Zaloguj się, a napiszemy, gdy wróci.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>E-mail przyjdzie na adres %1. Jeśli już go nie chcesz, naciśnij ponownie.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>E-mail przyjdzie na adres %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Powiększ zdjęcie %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>„%1”: %Ln wynik</numerusform>
            <numerusform>„%1”: %Ln wyniki</numerusform>
            <numerusform>„%1”: %Ln wyników</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Czego szukasz?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Brak wyników dla „%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Sprawdź pisownię, użyj ogólniejszego słowa albo zajrzyj do Nowości.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Nic nie pasuje do tych filtrów</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Usuń filtr lub dwa, aby zobaczyć więcej dla „%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Wylogować się?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Koszyk i ulubione zostaną na tym komputerze. Zamówienia i klub będą znów dostępne po zalogowaniu.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tabela rozmiarów</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Jednostki rozmiarów</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sortowanie: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Narzędzia</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Na razie nie ma tu narzędzi.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Numer paczki lub zamówienia</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Znajdziesz go w e-mailu o wysyłce.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Nie znamy tego numeru. Sprawdź go albo spróbuj jutro: nowa paczka bywa widoczna dopiero po jednym dniu.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Śledź</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Ta strona jest niedostępna</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Mogła zostać przeniesiona albo pojawi się w innej wersji.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Naciśnij serduszko przy rzeczy, a będzie tu na ciebie czekać. Jej ceny też pilnujemy.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Twoje konto: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Szukamy twojego konta…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Nie zalogowano</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Zamówienia, alerty i klub wymagają konta. Oglądanie i zakupy – nie.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Kolory</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Jak w systemie</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Jasne lub ciemne, tak jak pulpit</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Jasne</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Ciemne</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Systemowa ramka okna</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Pasek tytułu nad kartami, jak w innych oknach</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Widok</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Przejdź</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Treść rozmowy</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Powiedz, czego szukasz albo na jaką okazję.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Anuluj połączenie</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Czat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Przejdź do czatu, aby też pisać</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Rozmowa: %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Czas rozmowy: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Pokaż w czacie</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Zmniejsz</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Zamknij i kontynuuj w czacie</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Zakończ rozmowę i zamknij</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Tylko obraz</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Pokaż rozmowę: %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Rozmowa: %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Rozwiń na całą stronę</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Śledź je w każdej chwili w Zamówieniach.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Wczytaj stronę ponownie</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Bezpieczna płatność przez Shopify  ·  Koszyk zostaje bez zmian</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Łącze na tej stronie prowadzi poza kasę: %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Otwórz w przeglądarce</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Kasy nie można tu pokazać</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Kontynuuj w przeglądarce</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>Brak konfiguracji LOOMSTREET</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Uruchom scripts/sync-secrets.sh w folderze projektu i zbuduj ponownie.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Historia przeglądania</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Kraj i waluta</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Język sklepu</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Otwieraj rzeczy obok listy</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>W szerokim oknie rzecz widać obok miejsca, skąd pochodzi</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Jednostki miary</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centymetry i kilogramy</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Cale i funty</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Strona bez tytułu</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Wstrzymaj pokaz slajdów</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Odtwórz pokaz slajdów</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spacja</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Nie udało się wczytać tego zdjęcia</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Rynek i język: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Rynek i język</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Szukaj języka</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Szukaj kraju lub waluty</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Języki</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Kraje</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Żaden język nie pasuje do „%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Żaden kraj nie pasuje do „%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>W oknie</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Baner u góry okna, przez kilka sekund.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Na pulpicie</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Tam, gdzie pulpit pokazuje powiadomienia aplikacji, także gdy żadne okno nie jest otwarte.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Z dźwiękiem</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Licznik na ikonie aplikacji</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Ile jest jeszcze nieprzeczytanych.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Pokaż przykład</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>O czym powiadamiać</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Już nie będzie polecane na tym komputerze.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panel boczny</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Otwórz w nowej karcie</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Zamknij panel boczny</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Szerokość panelu bocznego</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Pomóż sklepowi wybierać, co pokazać</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Mówi mu, które strony są otwierane, które rzeczy są oglądane, wkładane do koszyka i kupowane oraz kiedy aplikacja nagle się zamknęła – bez twojego imienia i nazwiska. Po wyłączeniu wysyłane jest tylko to, co niezbędne.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>W obu przypadkach</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Niezbędne jest to, o co prosisz</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Otwierane strony, wyszukiwania, koszyk i zamówienia muszą dotrzeć do sklepu.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Co zachowujesz, zostaje na tym komputerze</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Ulubione, oglądane i wyszukiwane, dopóki ich nie wyczyścisz.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Dane logowania leżą w bazie kluczy</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Gdy jej nie ma – w pliku, który możesz odczytać tylko ty. Wygasają po 60 dniach i przy każdym wylogowaniu.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Zapisano zrzut ekranu</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Nie udało się zapisać zrzutu ekranu</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Sprawdź, czy w folderze Obrazy jest miejsce.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Pokaż folder</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Szukaj lub wklej łącze</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Szukaj po zdjęciu…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Działy</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Kontynuuj przez %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Trwa logowanie…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 otworzy się w przeglądarce. Zaloguj się tam, a tutaj logowanie nastąpi samo.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Skopiowano</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Kopiuj adres</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Jeśli przeglądarka nie otworzyła się sama</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Nic się tu nie stało?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Wklej łącze, na którym skończyła przeglądarka</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Zaczyna się od „wrenfieldstore://”. Niektóre przeglądarki pokazują je na pasku adresu.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Dokończ logowanie</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Załóż konto</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Zaloguj się na konto</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Sposoby logowania</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Kod z e-maila</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Wysłaliśmy kod na adres %1. To może potrwać minutę.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Najpierw wyślemy ci kod e-mailem, aby mieć pewność, że to twój adres.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Wyślemy ci e-mailem kod do logowania. Hasło jest niepotrzebne.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Kod weryfikacyjny</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Wyślij ponownie za %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Wyślij ponownie</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Wyślij kod ponownie</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Hasło (co najmniej 6 znaków)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Imię (opcjonalnie)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Nie pamiętasz hasła? Zaloguj się kodem z e-maila</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Wyślij mi kod</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>lub kontynuuj przez</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Wypróbuj</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Przestań słuchać mikrofonu</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Wypróbuj mikrofon</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Jest używany w rozmowie.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Powiedz coś: pasek podąża za głosem. Nic nie opuszcza tego komputera.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Pokazuje, jak głośno mówisz. Nic nie opuszcza tego komputera.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Głośnik</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 wycisza mikrofon z każdego miejsca, dopóki trwa rozmowa.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M wycisza mikrofon w oknie rozmowy.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Łącze</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Szukaj „%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Ostatnie</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Oglądane i zapisane</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Nic tu nie pasuje. Enter przeszuka wszystkie rzeczy.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>aby wybrać</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>aby zamknąć</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Usuń „%1” z ostatnich wyszukiwań</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Zdjęcie: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Otwiera się w przeglądarce</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Napisz wiadomość</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Dołącz zdjęcie lub PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Zdjęcia i PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Upuść tu zdjęcie lub PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Jak możemy pomóc?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Zapytaj o zamówienie, zwrot lub rozmiar. Zdjęcia też pomagają.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Gdzie jest moje zamówienie?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Chcę coś zwrócić</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Który rozmiar wybrać?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Wczytywanie</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Zamknij: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nowa karta po prawej</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Odepnij kartę</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Przypnij kartę</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Przenieś kartę do nowego okna</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Przywróć zamkniętą kartę</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Zamknij kartę</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Zamknij inne karty</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Rozwiń pasek boczny</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Zwiń pasek boczny</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Karty</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nowa karta</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Usunięto z listy: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizuj</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Ostatnie sprawdzenie: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Jeszcze nie sprawdzano</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Ta kopia LOOMSTREET nie może się sama zaktualizować.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET sam szuka nowych wersji.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Na razie LOOMSTREET nie szuka sam nowych wersji.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Nowe wersje przychodzą stamtąd, skąd pochodzi aplikacja. Nadal możesz sprawdzić tutaj.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Przy uruchomieniu i co sześć godzin. Nowa wersja pobiera się w tle i instaluje przy zamknięciu; jeśli to niemożliwe, dostaniesz informację.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Sklep to wstrzymał. Nadal możesz sprawdzić tutaj.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Co nowego</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizuj</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maksymalizuj</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Zamknij okno</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Bezpieczne połączenie: %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Połączenie nie jest bezpieczne</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Twoje konto zostało usunięte.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Wylogowanie nastąpiło przed usunięciem konta. Zaloguj się ponownie, aby je usunąć.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Dostawa</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Bezpłatna</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Podatki</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln paczka</numerusform>
            <numerusform>%Ln paczki</numerusform>
            <numerusform>%Ln paczek</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Potwierdzone</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Spakowane</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowane</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>W toku</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Czeka na przewoźnika</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Kurier już jedzie</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Problem z dostawą</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Zwrot zgłoszony</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Zwrot przyjęty</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Pieniądze zwrócone</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Zwrot odrzucony</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 i jeszcze %Ln</numerusform>
            <numerusform>%1 i jeszcze %Ln</numerusform>
            <numerusform>%1 i jeszcze %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Użyj najwyżej %Ln znaku.</numerusform>
            <numerusform>Użyj najwyżej %Ln znaków.</numerusform>
            <numerusform>Użyj najwyżej %Ln znaków.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Podaj numer telefonu, na przykład %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Podaj datę, na przykład %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Podaj datę z przeszłości.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Coś z wpisanych danych nie zostało przyjęte. Sprawdź i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Podaj prawidłowy adres e-mail.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Ten kod jest błędny albo wygasł. Poproś o nowy.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Zbyt wiele prób. Odczekaj minutę i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Ten e-mail i hasło do siebie nie pasują. Spróbuj ponownie albo zaloguj się kodem z e-maila.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Ten sposób logowania nie jest jeszcze dostępny.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>To konto nie ma adresu e-mail, którego możemy użyć. Wybierz inny sposób.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Logowanie anulowano.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Nie udało się zalogować. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Wpisz sześć cyfr kodu.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Wybierz hasło z co najmniej 6 znaków.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Wpisz hasło. Ma co najmniej 6 znaków.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>To nie jest łącze kończące logowanie. Właściwe zaczyna się od „wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Centrum pomocy LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Regulaminy</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nowe okno</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Przypnij lub odepnij kartę</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Przesuń kartę wstecz</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Przesuń kartę dalej</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Otwórz produkt z panelu na pełnej stronie</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Otwórz produkt z panelu w nowej karcie</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Zrób zrzut ekranu</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pełny ekran</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Przejdź na początek działu</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Następna karta</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Poprzednia karta</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Polecane</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Najnowsze</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Cena: od najniższej</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Cena: od najwyższej</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Bestsellery</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Kobiety</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Mężczyźni</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luksus</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Torebki</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Akcesoria</translation>
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
        <translation>Bez zwrotu</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowość</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Ostatnia sztuka</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Została tylko %Ln sztuka</numerusform>
            <numerusform>Zostały tylko %Ln sztuki</numerusform>
            <numerusform>Zostało tylko %Ln sztuk</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Trafność</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Tej rzeczy nie można zwrócić</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Przed zamówieniem sprawdź rozmiar i kolor</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Wykonane dla ciebie</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Zwrot tylko, gdy dotrze z wadą</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Na zamówienie, więc potrwa dłużej</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>W ciągu 30 dni, nienoszone, ze wszystkim, z czym przyszło</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Zachowaj pudełko, woreczek i dokumenty</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>W ciągu 30 dni, podeszwy bez śladów, w pudełku</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Najpierw przymierz w domu</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>W ciągu 30 dni, nienoszone, z metkami</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Najpierw wybierz: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln produkt w koszyku</numerusform>
            <numerusform>%Ln produkty w koszyku</numerusform>
            <numerusform>%Ln produktów w koszyku</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Nie udało się zastosować kodu. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>Kod „%1” nie obejmuje produktów z koszyka.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Masz DARMOWĄ dostawę na cały świat</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Jeszcze %1 do DARMOWEJ dostawy na cały świat</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Zamówienie złożone. Pojawi się w Zamówieniach za kilka minut.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Zamówienie %1 złożone. Pojawi się w Zamówieniach za kilka minut.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln rzecz  ·  potwierdzenie wysłaliśmy e-mailem</numerusform>
            <numerusform>%Ln rzeczy  ·  potwierdzenie wysłaliśmy e-mailem</numerusform>
            <numerusform>%Ln rzeczy  ·  potwierdzenie wysłaliśmy e-mailem</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Strona wczytywała się zbyt długo.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Strona prowadzi poza kasę.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Strona przestała działać.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Nie udało się otworzyć kasy. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Teraz taniej o %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>do pracy</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>na randkę</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>na imprezę</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>na wesele</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>na wakacje</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>na podróż</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>na co dzień</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>na weekend</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>do szkoły</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>na rozmowę o pracę</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>na rozdanie dyplomów</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>na festiwal</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>na plażę</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>na wieczorne wyjście</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>na brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>na siłownię</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>na uroczystość</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Nowości</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>W twoim guście</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Nowości tygodnia</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Nowość tygodnia</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Wybrane ręcznie</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Nowość tygodnia · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>W twoim guście</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Lubią to osoby takie jak ty</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Na podstawie tego, co oglądasz</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Teraz na topie</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Pasuje do wyszukiwania: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>W twoim stylu: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>W sam raz %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Styl: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>słodki</translation>
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
        <translation>elegancki</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalistyczny</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantyczny</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>streetwear</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>gotycki</translation>
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
        <translation>francuski</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>z pazurem</translation>
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
        <translation>festiwalowy</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>klasyczny</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportowy</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>szykowny</translation>
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
        <translation>koreański</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japoński</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>nowy chiński</translation>
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
        <translation>cichy luksus</translation>
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
        <translation>seksowny</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>uroczy</translation>
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
        <translation>kobiecy</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgyniczny</translation>
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
        <translation>formalny</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>glamour</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>awangardowy</translation>
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
        <translation>Start</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Wyprzedaż</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Skrzynka</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Zbyt wiele prób. Odczekaj chwilę i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Twoja sesja wygasła. Zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Podaj adres e-mail.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Niektóre dane wyglądają na błędne. Sprawdź je i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET ma chwilowe problemy. Spróbuj niedługo ponownie.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Nie udało się. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Nadeszła nieoczekiwana odpowiedź. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Nie udało się połączyć z LOOMSTREET. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Aplikacji brakuje konfiguracji.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Upłynął limit czasu. Spróbuj ponownie.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>W skrzynce czeka jeszcze %Ln powiadomienie.</numerusform>
            <numerusform>W skrzynce czekają jeszcze %Ln powiadomienia.</numerusform>
            <numerusform>W skrzynce czeka jeszcze %Ln powiadomień.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Komunikaty systemowe</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Wieści o koncie i usługach</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Wieści o zamówieniach</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Zamówienie potwierdzone, wysłane i dostarczone</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Zwroty rzeczy i pieniędzy</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Zwrot pieniędzy i przebieg zwrotu</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Odpowiedzi obsługi klienta</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Gdy obsługa klienta ci odpowie</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Rzeczy, na które czekasz, są znowu dostępne</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Zapisane lub oglądane rzeczy tanieją</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktywność w Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Polubienia, komentarze, nowi obserwujący i wiadomości</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Zmiana poziomu, punkty i nowe kupony</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Promocje i wydarzenia</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Wyprzedaże, nowe dropy i wydarzenia sklepu</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Wysłano załącznik</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Zamówienie złożone</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Twoje zamówienie jest potwierdzone. Pojawi się w Zamówieniach za kilka minut.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Zamówienie %1 jest potwierdzone. Pojawi się w Zamówieniach za kilka minut.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>Nie udało się zaktualizować LOOMSTREET</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Kliknij „Aktualizuj” u góry okna, aby zainstalować nową wersję z obrazu dysku.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Przykład powiadomienia</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Tu pojawią się wieści o zamówieniach i odpowiedzi obsługi klienta.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Szafa</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Wszystko, co masz, w jednym miejscu</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Studio stylizacji</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Połącz rzeczy i zobacz je jako całość</translation>
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
        <translation>Zachowane stylizacje</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Pomysły na stylizacje</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nowe sposoby na to, co masz w szafie</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Dobór rozmiaru</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Twoje wymiary i rozmiar, który do nich pasuje</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Szukanie po zdjęciu</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Znajdź rzecz na podstawie zdjęcia</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Porównanie</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Do czterech rzeczy obok siebie</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Sprawdzanie aktualizacji…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Masz najnowszą wersję</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Pobieranie LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Sprawdzanie pobranego pliku…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Instalowanie LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Nie udało się sprawdzić aktualizacji</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Nie udało się pobrać aktualizacji</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Gotowe do instalacji</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Zainstaluj aktualizację</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1: można instalować</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 to najnowsza wersja.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET się zamknie, a jego miejsce zajmie nowa wersja.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Pobrano. Uruchom ponownie, aby dokończyć, albo aktualizacja zainstaluje się przy następnym zamknięciu.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>W oknie, które się otworzyło, przeciągnij LOOMSTREET na Aplikacje i wybierz „Zastąp”. Potem otwórz LOOMSTREET ponownie.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>Nie udało się zastąpić LOOMSTREET na tym komputerze. Zainstaluj nową wersję z obrazu dysku. Zajmie to kilka sekund.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Twoja wersja nie jest już obsługiwana.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Aktualizacja jest pobrana. Uruchom LOOMSTREET ponownie, aby dokończyć, albo zainstaluje się przy następnym zamknięciu.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Nie udało się sprawdzić aktualizacji. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Pobieranie nie powiodło się (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Pobrany plik jest niepełny lub zmienił się po drodze. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Nie udało się odczytać pobranego pliku.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Pobrany plik nie jest podpisany przez LOOMSTREET, więc go nie otwarto.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Pobierz i zainstaluj</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Uruchom ponownie i zaktualizuj</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Otwórz obraz dysku</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Wygląda na to, że nie masz połączenia z internetem.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira zbyt długo nie odpowiada.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Wysyłasz wiadomości zbyt szybko. Odczekaj chwilę.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Tej wiadomości nie dało się wysłać w tej postaci.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET ma chwilowe problemy.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Nie udało się połączyć z LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Wybierz rozmiary: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>W międzyczasie wyprzedane i niedodane: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Nie udało się otworzyć kasy. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Wzrost lub waga nie wyglądają dobrze. Sprawdź liczby i jednostki.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Jeden z wymiarów nie wygląda dobrze. Sprawdź liczbę albo zostaw puste pole.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Luźny</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Dopasowany</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Klasyczny</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Z czym to nosić: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Ta wiadomość nie została potwierdzona. Możesz spróbować ponownie.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Rozmowa jest aktualna</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira odpowiada</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira odpowiada. Te wiadomości wyślesz za chwilę.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Tematy są zapisane na tym komputerze. Mira pamięta waszą wspólną rozmowę.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Pomóż mi coś znaleźć</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Ułóż mi stylizację z mojej szafy</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Co założyć dziś wieczorem</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET nie może sprawdzić, gdzie jesteś. Wpisz swoje miasto.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Nie udało się ustalić, gdzie jesteś. Wpisz swoje miasto.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Nie znamy tego miasta. Spróbuj większego w pobliżu.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira nie może teraz odebrać. Spróbuj za chwilę.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira prowadzi inną rozmowę. Spróbuj za minutę.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Coś zakłóciło połączenie. Powtórzysz?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Połączenie się zerwało. Zadzwoń ponownie, aby rozmawiać dalej.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Dostęp do mikrofonu jest wyłączony. Włącz go: Ustawienia systemowe › Prywatność i ochrona › Mikrofon, a potem zadzwoń ponownie.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Nie udało się uruchomić mikrofonu. Sprawdź, czy jest podłączony, i zadzwoń ponownie.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Wyciszenie mikrofonu podczas rozmowy</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Dodano do koszyka</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Dodano do koszyka: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Nie udało się dodać. Spróbuj na stronie produktu.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Już tam idziemy…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Otwieramy: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Jak w systemie</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Niepodłączone</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Okrycia wierzchnie</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Dół</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Sukienki</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Buty</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Dodatki</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Łagodnie</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Słonecznie</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Częściowe zachmurzenie</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Pochmurno</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Mgliście</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Mżawka</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Deszczowo</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Śnieżnie</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Przelotne opady</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Burzowo</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Tego pliku już nie ma.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Nie udało się odczytać tego pliku.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Ten plik jest pusty.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Ten plik ma ponad 10 MB. Wybierz mniejszy.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Można wysyłać tylko zdjęcia i pliki PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Ta wiadomość mogła nie dotrzeć.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Ukryte</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>W drodze</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Dostarczone</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Wiadomość do obsługi klienta</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Rozmowa z obsługą klienta</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1”</translation>
    </message>
</context>
</TS>
