<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Jste zde</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Otevřít celou stránku</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Odesílání…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Zobrazit méně</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Zobrazit vše</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter odešle, Shift+Enter začne nový řádek</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Odeslat</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Odebrat: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Dříve</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Zpět na výběr roku</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Později</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Rozbaleno</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Sbaleno</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Na nejnovější</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln nová zpráva</numerusform>
            <numerusform>%Ln nové zprávy</numerusform>
            <numerusform>%Ln nových zpráv</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Zdá se, že připojení k internetu nefunguje. Zkontrolujte ho a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Skrýt heslo</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Zobrazit heslo</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, dříve %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Vyprodáno</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Pracuje se</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Odebrat z oblíbených</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Přidat do oblíbených</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Předchozí</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, vyprodáno</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, doporučujeme vám</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Hodnocení %L1 z 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Hodnocení %L1 z 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Méně</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Více</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Vrátit zpět</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Váš účet</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Odhlásit se</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Váš šatník, stále po ruce</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Prohlížet a nakupovat tu můžete i bez účtu. S ním ale obchod ví, kde jsou vaše zásilky a na co čekáte.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Přihlásit se</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Vytvořit účet</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Objednávky na jednom místě</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Kde je která zásilka a vrácení bez hledání účtenky</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Zpráva, když je to důležité</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Vaše velikost je zpět nebo klesla cena</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Klub a kupony</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Body, úrovně a co přinášejí</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Pokladna, která vás zná</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Vaše adresa už tam je</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Zákaznický servis</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Objednávky, vrácení a velikosti</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Objednávky</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Na cestě i dříve koupené</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Sledovat zásilku</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Podle jejího čísla nebo čísla objednávky</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Vrácení</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Poslat něco zpět</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Pro vás</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Oblíbené</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Zatím nic uloženého</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln kousek</numerusform>
            <numerusform>%Ln kousky</numerusform>
            <numerusform>%Ln kousků</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Hlídání</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Opět skladem a nižší ceny</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Klub</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Vaše úroveň a body</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kupony</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>K použití v pokladně</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Bez účtu</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Jméno, narozeniny a newslettery</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Soukromí</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Co se o vás obchod dozví</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Uloženo v tomto počítači</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Smazat účet…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Klíčenka neodpovídá</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Bezpečně uchovává vaše přihlášení a bez ní se nelze přihlásit. Odemkněte ji a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Opět skladem</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Snížení ceny</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Už je tu znovu</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Teď levněji</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>Tehdejší cena: %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Zrušit toto hlídání</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln hlídání</numerusform>
            <numerusform>%Ln hlídání</numerusform>
            <numerusform>%Ln hlídání</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Napíšeme vám na %1, až bude kousek zpět nebo klesne jeho cena.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Zatím žádné hlídání</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>U kousku vyprodaného ve vaší velikosti klikněte na „Upozornit, až bude skladem“. U ostatních na „Upozornit na snížení ceny“.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Novinky</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Přihlaste se a uvidíte svá hlídání</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Dáme vám vědět, až bude kousek zpět ve vaší velikosti nebo bude levnější.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Už vám o něm nebudeme psát.</numerusform>
            <numerusform>Už vám o nich nebudeme psát.</numerusform>
            <numerusform>Už vám o nich nebudeme psát.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln kousek</numerusform>
            <numerusform>%1, %Ln kousky</numerusform>
            <numerusform>%1, %Ln kousků</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Návrháři</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln návrhář</numerusform>
            <numerusform>%Ln návrháři</numerusform>
            <numerusform>%Ln návrhářů</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Najít návrháře</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vymazat</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Písmena</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Ostatní návrháři</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Návrháři na %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Výrazu „%1“ neodpovídá žádný návrhář</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Zkontrolujte pravopis nebo si projděte celý seznam.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Zobrazit všechny návrháře</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Zatím tu nic není</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Nové kousky přibývají každý týden.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Objevovat</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln recenze</numerusform>
            <numerusform>%Ln recenze</numerusform>
            <numerusform>%Ln recenzí</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>Prodáno: %Ln</numerusform>
            <numerusform>Prodáno: %Ln</numerusform>
            <numerusform>Prodáno: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Předprodej</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Nejčastější volba: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>S čím to nosit?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porovnat</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Vedle uložených nebo prohlížených kousků</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>Doprava po celém světě ZDARMA</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Při nákupu od %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Dobré vědět</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Včetně dovozního cla</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Doprava se vypočítá v pokladně</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Napíšeme vám, až bude skladem</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Upozornit, až bude skladem</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Přidáno</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Do košíku</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Kliknutím zrušíte</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Otevíráme pokladnu…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Koupit hned</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Hovor: %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Otevřít v samostatném okně</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Ukončit hovor</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Zobrazit hovor</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Zavolat: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Zavolat znovu</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofon je zapnutý</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofon je ztlumený</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Vytáčení…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Přemýšlí</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Mluví</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Ztlumeno</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Poslouchá</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Hovor skončil</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Zrušit ztlumení</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Ztlumit</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Slevový kód</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Košík se nepodařilo načíst</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Vaše položky jsou v bezpečí. Zkontrolujte připojení a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Váš košík je prázdný</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Tady se objeví, co do něj přidáte.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Pokračovat v nákupu</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Odebráno z košíku: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Platnost předchozího košíku vypršela. Byla v něm %Ln položka.</numerusform>
            <numerusform>Platnost předchozího košíku vypršela. Byly v něm %Ln položky.</numerusform>
            <numerusform>Platnost předchozího košíku vypršela. Bylo v něm %Ln položek.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Dát zpět</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Množství: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Odebrat z košíku</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Skrýt</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Košík</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Košík</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Zobrazit v bočním panelu</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Mezisoučet</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Sleva</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Celkem</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Včetně dovozního cla · Doprava se vypočítá v pokladně</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Pokladna</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Dokončete platbu v okně pokladny. Košík zůstane, jak je.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nedostupné</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Kolekce</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln novinka za posledních 30 dní</numerusform>
            <numerusform>%Ln novinky za posledních 30 dní</numerusform>
            <numerusform>%Ln novinek za posledních 30 dní</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Tato kolekce není dostupná</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Možná má nový název nebo se neprodává v této zemi: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Těmto filtrům nic neodpovídá</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Odeberte filtr a uvidíte víc.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Dolaďte outfit</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Kousky, které se k tomu hodí</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Líbí se také</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Těm, kdo si prohlíželi tento kousek</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Mohlo by se vám líbit</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Přidat kousky k porovnání</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Přidat kousek</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Z oblíbených a prohlížených</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Ukládejte si kousky nebo si je prohlížejte a pak je přidejte sem.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Porovnat: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Velikosti</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Složení</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Odebrat z porovnání</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Ve vaší zemi nedostupné.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>neuvedeno</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Velikosti: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Zpět na začátek</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Co nosí ostatní</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Rozhlédnout se</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Sledované</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Novinky od vašich návrhářů</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Podívat se na novinky</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Šatník</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Co si dnes vzít na sebe?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Otevřít šatník</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Vaše objednávky a hlídání</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Váš klub</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Podívat se na výhody</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Kde je moje zásilka?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Objednávka %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Zobrazit objednávku</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Snížení cen</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Vaše kousky teď stojí méně</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Uložte si, co milujete</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln uložený kousek</numerusform>
            <numerusform>%Ln uložené kousky</numerusform>
            <numerusform>%Ln uložených kousků</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Zobrazit oblíbené</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Smazat účet?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Profil, hlídání, členství v klubu i seznam objednávek se smažou natrvalo. Objednávky na cestě přesto dorazí. Tento krok nelze vrátit.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Pro potvrzení zadejte svou e-mailovou adresu</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Smazat účet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Kolekce</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtry</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Zrušit všechny filtry</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Najít: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Nic takového tu není</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Zobrazit méně</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Zobrazit všechny (%Ln)</numerusform>
            <numerusform>Zobrazit všechny (%Ln)</numerusform>
            <numerusform>Zobrazit všechny (%Ln)</numerusform>
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
        <translation>Zobrazit kousky</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Zobrazit %Ln kousek</numerusform>
            <numerusform>Zobrazit %Ln kousky</numerusform>
            <numerusform>Zobrazit %Ln kousků</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Zavřít filtry</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>Vybráno: %Ln, porovnat lze %L1</numerusform>
            <numerusform>Vybráno: %Ln, porovnat lze %L1</numerusform>
            <numerusform>Vybráno: %Ln, porovnat lze %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>Vybráno: %Ln</numerusform>
            <numerusform>Vybráno: %Ln</numerusform>
            <numerusform>Vybráno: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Vyberte dva až čtyři kousky</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Od nejnovějších</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Cena: od nejnižší</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Cena: od nejvyšší</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>To je vše: %Ln kousek</numerusform>
            <numerusform>To je vše: %Ln kousky</numerusform>
            <numerusform>To je vše: %Ln kousků</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Kolekce: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Otevřít: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Vyberte velikost</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Doporučujeme vám: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>V košíku</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Vyměnit</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Vynechat</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 z %Ln kousku</numerusform>
            <numerusform>%L1 ze %Ln kousků</numerusform>
            <numerusform>%L1 z %Ln kousků</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Místo: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Nic podobného teď nemáme.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira doporučuje</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Váš outfit</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Vyberte velikosti, vyměňte, co se vám líbí méně, a vynechte, co už máte.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>palce</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Vaše míry</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira podle nich určí vaše velikosti. Uloží se do vaší konverzace a kopie zůstane v tomto počítači, dokud se neodhlásíte.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Jednotky</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrické</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperiální</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Výška (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>stopy</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Váha (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>libry</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>Hrudník (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Pas (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Boky (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Neznáte je? Nechte je prázdné.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Oblíbený střih</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Poslat stylistce</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Smazat z tohoto počítače</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Sestavit k tomu outfit</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Vybrat velikost a přidat do košíku</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Zpráva pro: %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Outfit s kouskem: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Moje kousky · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Outfit z mých kousků</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Počasí</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Více</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Zobrazit outfit: %Ln kousek ve vaší velikosti</numerusform>
            <numerusform>Zobrazit outfit: %Ln kousky, každý ve vaší velikosti</numerusform>
            <numerusform>Zobrazit outfit: %Ln kousků, každý ve vaší velikosti</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nové téma</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Témata…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Outfit z mých kousků…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Moje míry…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Počasí…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Zobrazit vedle stránky</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Návrhy</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Odeslat: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Konverzace: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Přejmenovat</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Smazat</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Název tématu</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Smazat „%1“?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Ponechat</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Témata</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Vy</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Zadat moje míry</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 použije nejdřív tyto kousky a něco nového přidá jen tam, kde to chybí.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Zatím není z čeho skládat</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Tady se objeví kousky z košíku a z oblíbených.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>Vybráno %Ln, víc už nejde</numerusform>
            <numerusform>Vybráno %Ln, víc už nejde</numerusform>
            <numerusform>Vybráno %Ln, víc už nejde</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Ve vašem košíku</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Ve vašich oblíbených</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Kde jste? Outfit bude ladit s počasím.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Outfit podle počasí</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Město</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Nastavit</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Použít moji polohu</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Na jakou příležitost se oblékáte?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Popište příležitost, oblíbený kousek nebo rozpočet a %1 outfit sestaví.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Přihlaste se a uvidíte, co je nového u objednávek a hlídání.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zobrazit</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Vše</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Systém</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Zákaznický servis</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Oznámení</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Přihlaste se a uvidíte oznámení</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Nic nového</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Tady se dozvíte o objednávkách na cestě, kouscích opět skladem a nižších cenách.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Tady najdete vše o objednávkách a kouscích, které sledujete.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Nepřečtené</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Označit vše jako přečtené</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Nastavení oznámení</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Očekávané doručení: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Objednávka</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Datum objednávky: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Zásilka</numerusform>
            <numerusform>Zásilky</numerusform>
            <numerusform>Zásilky</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Kousky</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Vrácení a peníze zpět</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Tato objednávka tu není</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Nová objednávka se tu objeví za několik minut.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Možná patří k jinému účtu.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Přihlaste se a uvidíte tuto objednávku</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Zásilku lze podle čísla sledovat i bez účtu.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Množství: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Skrytá</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Znovu zobrazit objednávku</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Skrýt objednávku</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Které objednávky</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Na cestě</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Doručeno</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Všechny vaše objednávky jsou skryté</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Nic není na cestě</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Zatím nic doručeného</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Žádná vrácení</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Některé z nich jsou skryté.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Zobrazit skryté objednávky</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Všechny objednávky</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Vaše objednávka tu bude každou chvíli</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Zatím žádné objednávky</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Tady uvidíte, co je objednané a kde to právě je.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Přihlaste se a uvidíte objednávky</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Kde jsou, co v nich je a jak něco vrátit.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Skryto ze seznamu objednávek v tomto počítači.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Krok %L1 z %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Doručovací adresa</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Vrátit zboží</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Zásilka %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Toto číslo zatím nikdo nezná</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Nová zásilka se u dopravce může objevit až za den.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Otevřít stránku dopravce</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Dopravce o ní zatím nic nesdělil.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Historie zásilky</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Dočasně nedostupné</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Tato funkce je teď pozastavená. Zkuste to prosím později.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Odebrat ze seznamu</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Tento kousek není dostupný</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Možná je vyprodaný nadobro nebo se neprodává v této zemi: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Napíšeme vám, až bude levnější</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Upozornit na snížení ceny</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln kousek stojí méně než při prohlížení</numerusform>
            <numerusform>%Ln kousky stojí méně než při prohlížení</numerusform>
            <numerusform>%Ln kousků stojí méně než při prohlížení</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Zatím není co hlídat</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Teď žádné snížení cen</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Uložte si kousek nebo si ho prohlédněte a tady uvidíte, až bude levnější.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Uložené a prohlížené kousky stojí stejně jako při prohlížení nebo měly cenu v jiné měně.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Finální výprodej</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Obrázky</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Obrázek %L1 z %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, obrázek %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Zobrazit vše</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Nezajímá mě</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Po %Ln dni: %1</numerusform>
            <numerusform>Po %Ln dnech: %1</numerusform>
            <numerusform>Po %Ln dnech: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Odpověď obchodu: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Recenze</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Další recenze</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Popis</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Přednosti</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Otázky a odpovědi</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Jméno</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Narozeniny</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Vyberte datum</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Adresa, kterou se přihlašujete</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Země</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Zahodit změny</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Uloženo</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>S námi od %1</translation>
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
        <translation>Nové kousky a nabídky na %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>SMS zprávou</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Vyžaduje telefonní číslo výše</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Přihlaste se a uvidíte svůj profil</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Vaše jméno, telefon a co vám smíme posílat.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Objevit</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Trochu se rozhlédněte a najdete tu, co se k tomu hodí.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Naposledy prohlížené</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Vymazat vše</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Zatím nic prohlíženého</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Tady se sbírají prohlížené kousky, ať se k nim snadno vrátíte.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Přihlaste se a napíšeme vám, až bude zpět.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>E-mail přijde na %1. Pokud o něj už nestojíte, klikněte znovu.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>E-mail přijde na %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Zvětšit obrázek %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>„%1“: %Ln výsledek</numerusform>
            <numerusform>„%1“: %Ln výsledky</numerusform>
            <numerusform>„%1“: %Ln výsledků</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Co hledáte?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Pro „%1“ nic nemáme</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Zkontrolujte pravopis, zkuste obecnější slovo nebo se podívejte do Novinek.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Těmto filtrům nic neodpovídá</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Odeberte filtr nebo dva a uvidíte víc pro „%1“</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Odhlásit se?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Košík a oblíbené zůstanou v tomto počítači. Objednávky a klub budou znovu dostupné po přihlášení.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tabulka velikostí</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Jednotky velikostí</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Řazení: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Nástroje</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Teď tu žádné nástroje nejsou.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Číslo zásilky nebo objednávky</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Najdete ho v e-mailu o odeslání.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Toto číslo neznáme. Zkontrolujte ho nebo to zkuste zítra: nová zásilka se může objevit až za den.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Sledovat</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Tato stránka není dostupná</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Možná se přesunula nebo přijde s jinou verzí.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Klikněte u kousku na srdíčko a počká tu na vás. Hlídáme i jeho cenu.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Váš účet: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Hledáme váš účet…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Nikdo není přihlášený</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Objednávky, hlídání a klub vyžadují účet. Prohlížení a nákup ne.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Vzhled</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Barvy</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Podle systému</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Střídá světlé a tmavé podle plochy</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Světlé</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tmavé</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Systémový rám okna</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Záhlaví nad kartami, jak ho mají jiná okna</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Zobrazení</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Přejít</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Přepis hovoru</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Řekněte, co hledáte nebo na jakou příležitost.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Zrušit volání</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Pokračovat v chatu, kde můžete i psát</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Hovor: %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Délka hovoru: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Zobrazit v chatu</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Zmenšit</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Zavřít a pokračovat v chatu</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Ukončit hovor a zavřít</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Jen obraz</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Zvětšit</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Zobrazit hovor: %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Hovor: %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Rozbalit na celou stránku</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Sledujte ji kdykoli v Objednávkách.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Znovu načíst stránku</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Bezpečná platba přes Shopify  ·  Košík zůstane, jak je</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Odkaz na této stránce vede mimo pokladnu: %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Otevřít v prohlížeči</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Pokladnu tu nelze zobrazit</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Pokračovat v prohlížeči</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET není nastavený</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Spusťte scripts/sync-secrets.sh ve složce projektu a sestavte aplikaci znovu.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Historie prohlížení</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Země a měna</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Jazyk obchodu</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Otevírat kousky vedle seznamu</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>V širokém okně se kousek ukáže vedle místa, kde byl nalezen</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Jednotky měr</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimetry a kilogramy</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Palce a libry</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Stránka bez názvu</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Pozastavit prezentaci</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Spustit prezentaci</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Mezerník</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Oddálit</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Přiblížit</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Tento obrázek se nepodařilo načíst</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Trh a jazyk: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Trh a jazyk</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Hledat jazyk</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Hledat zemi nebo měnu</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Jazyky</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Země</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Výrazu „%1“ neodpovídá žádný jazyk</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Výrazu „%1“ neodpovídá žádná země</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>V okně</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Proužek nahoře v okně, na pár sekund.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Na ploše</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Tam, kde plocha ukazuje oznámení aplikací, i když není otevřené žádné okno.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Se zvukem</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Počet na ikoně aplikace</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Kolik toho ještě není přečteno.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Ukázat příklad</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>O čem upozorňovat</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>V tomto počítači už nebudeme doporučovat.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Boční panel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Otevřít na nové kartě</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Zavřít boční panel</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Šířka bočního panelu</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Pomáhat obchodu vybírat, co ukázat</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Říká mu, které stránky se otevírají, které kousky se prohlížejí, vkládají do košíku a kupují a kdy aplikace nečekaně skončila, bez vašeho jména. Při vypnutí se posílá jen to nezbytné.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>V obou případech</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Nezbytné je to, o co žádáte</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Otevřené stránky, hledání, košík a objednávky se k obchodu dostat musí.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Co si uložíte, zůstává v tomto počítači</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Oblíbené, prohlížené a hledané, dokud je nevymažete.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Vaše přihlášení je v klíčence</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Kde žádná není, je v souboru, který můžete číst jen vy. Skončí po 60 dnech a při každém odhlášení.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Snímek obrazovky uložen</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Snímek obrazovky se nepodařilo uložit</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Zkontrolujte, zda je ve složce Obrázky místo.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Zobrazit složku</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Hledejte nebo vložte odkaz</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Hledat podle obrázku…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Zvuk</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Aktualizace</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Sekce</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Pokračovat přes %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Přihlašování…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 se otevře v prohlížeči. Přihlaste se tam a přihlášení se projeví i tady.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Zkopírováno</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Zkopírovat adresu</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Pokud se prohlížeč neotevřel sám</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Nic se tu nestalo?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Vložte odkaz, u kterého prohlížeč skončil</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Začíná na „wrenfieldstore://“. Některé prohlížeče ho ukazují v adresním řádku.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Dokončit přihlášení</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Vytvořte si účet</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Přihlaste se ke svému účtu</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Způsoby přihlášení</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Kód z e-mailu</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Na %1 jsme poslali kód. Může dorazit až za minutu.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Nejdřív vám e-mailem pošleme kód, abychom věděli, že adresa je vaše.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Pošleme vám e-mailem přihlašovací kód. Heslo nepotřebujete.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Ověřovací kód</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Znovu za %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Odeslat znovu</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Odeslat kód znovu</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Heslo (aspoň 6 znaků)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Jméno (nepovinné)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Zapomenuté heslo? Přihlaste se kódem z e-mailu</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Poslat mi kód</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>nebo pokračovat přes</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Vyzkoušet</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Přestat poslouchat mikrofon</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Vyzkoušet mikrofon</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Hlasitost</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Používá ho hovor.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Řekněte něco: proužek sleduje váš hlas. Nic tento počítač neopustí.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Ukazuje, jak hlasitě mluvíte. Nic tento počítač neopustí.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Reproduktor</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 ztlumí mikrofon odkudkoli, dokud hovor trvá.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M ztlumí mikrofon v okně hovoru.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Odkaz</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Hledat „%1“</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Nedávné</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Prohlížené a uložené</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Nic nás nenapadá. Enter prohledá všechny kousky.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>pro výběr</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>pro zavření</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Odebrat „%1“ z nedávných hledání</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Obrázek: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Otevře se v prohlížeči</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Napište zprávu</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Přiložit obrázek nebo PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Obrázky a PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Přetáhněte sem obrázek nebo PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Jak můžeme pomoci?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Zeptejte se na objednávku, vrácení nebo velikost. Pomůžou i obrázky.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Kde je moje objednávka?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Chci něco vrátit</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Kterou velikost si mám vybrat?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Načítání</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Zavřít: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nová karta vpravo</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Odepnout kartu</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Připnout kartu</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Přesunout kartu do nového okna</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Obnovit zavřenou kartu</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Zavřít kartu</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Zavřít ostatní karty</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Rozbalit postranní panel</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Sbalit postranní panel</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Karty</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nová karta</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vpřed</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Nabídka</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Odebráno ze seznamu: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizovat</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Poslední kontrola: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Zatím nezkontrolováno</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Tato kopie LOOMSTREET se neumí sama aktualizovat.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET hledá nové verze sám.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET teď nové verze sám nehledá.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Nové verze přicházejí odtud, odkud aplikaci máte. I tady je ale můžete zkontrolovat.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Při spuštění a každých šest hodin. Co najde, stáhne na pozadí a nainstaluje při ukončení; když to nejde, dozvíte se to.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Obchod to pozastavil. I tady je ale můžete zkontrolovat.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Zkontrolovat aktualizace…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Verze %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Co je nového</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Přeskočit tuto verzi</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalizovat</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximalizovat</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Zavřít okno</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Zabezpečené připojení: %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Připojení není zabezpečené</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Váš účet byl smazán.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Došlo k odhlášení dřív, než mohl být účet smazán. Přihlaste se znovu a smažte ho.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Doprava</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Zdarma</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Daně</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln zásilka</numerusform>
            <numerusform>%Ln zásilky</numerusform>
            <numerusform>%Ln zásilek</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Potvrzeno</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Zabaleno</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Zrušeno</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Zpracovává se</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Čeká na dopravce</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>U kurýra</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Potíže s doručením</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Žádost o vrácení</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Vrácení schváleno</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Peníze vráceny</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Vrácení zamítnuto</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 a ještě %Ln</numerusform>
            <numerusform>%1 a ještě %Ln</numerusform>
            <numerusform>%1 a ještě %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Použijte nejvýše %Ln znak.</numerusform>
            <numerusform>Použijte nejvýše %Ln znaky.</numerusform>
            <numerusform>Použijte nejvýše %Ln znaků.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Zadejte telefonní číslo, například %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Zadejte datum, například %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Zadejte datum v minulosti.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Něco ze zadaných údajů nebylo přijato. Zkontrolujte to a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Zadejte platnou e-mailovou adresu.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Kód je chybný nebo vypršel. Vyžádejte si nový.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Příliš mnoho pokusů. Počkejte minutu a zkuste to znovu.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-mail a heslo k sobě nepatří. Zkuste to znovu nebo se přihlaste kódem z e-mailu.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Tento způsob přihlášení zatím není dostupný.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Tento účet nemá e-mailovou adresu, kterou bychom mohli použít. Zkuste jiný způsob.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Přihlášení bylo zrušeno.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Přihlášení se nezdařilo. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Zadejte šest číslic kódu.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Zvolte heslo s aspoň 6 znaky.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Zadejte heslo. Má aspoň 6 znaků.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>To není odkaz, u kterého přihlášení skončilo. Ten začíná na „wrenfieldstore://“.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Centrum nápovědy LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Smluvní podmínky</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nové okno</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Připnout nebo odepnout kartu</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Posunout kartu zpět</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Posunout kartu vpřed</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Otevřít produkt z panelu na celé stránce</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Otevřít produkt z panelu na nové kartě</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Pořídit snímek obrazovky</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Celá obrazovka</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Přejít na začátek sekce</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Další karta</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Předchozí karta</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Doporučené</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Nejnovější</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Cena: od nejnižší</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Cena: od nejvyšší</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Nejprodávanější</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Ženy</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Muži</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luxus</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Kabelky</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Doplňky</translation>
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
        <translation>Nelze vrátit</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novinka</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Poslední kus</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Už jen %Ln kus</numerusform>
            <numerusform>Už jen %Ln kusy</numerusform>
            <numerusform>Už jen %Ln kusů</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Nejlepší shoda</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Tento kousek nelze vrátit</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Před objednáním zkontrolujte velikost a barvu</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Vyrobeno pro vás</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Vrátit lze, jen když přijde vadné</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Vyrábí se na objednávku, počítejte s delší dobou</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Do 30 dnů, nenošené, se vším, s čím přišlo</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Uschovejte krabici, ochranný sáček i papíry</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Do 30 dnů, s čistou podrážkou, v krabici</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Nejdřív je vyzkoušejte doma</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Do 30 dnů, nenošené, s visačkami</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Nejdřív vyberte: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln položka v košíku</numerusform>
            <numerusform>%Ln položky v košíku</numerusform>
            <numerusform>%Ln položek v košíku</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Kód se nepodařilo použít. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>Kód „%1“ se na položky v košíku nevztahuje.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Máte dopravu po celém světě ZDARMA</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Ještě %1 a doprava po celém světě je ZDARMA</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Objednáno. Objednávka se za několik minut objeví v Objednávkách.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Objednávka %1 je přijata. Za několik minut se objeví v Objednávkách.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln kousek  ·  potvrzení jsme poslali na váš e-mail</numerusform>
            <numerusform>%Ln kousky  ·  potvrzení jsme poslali na váš e-mail</numerusform>
            <numerusform>%Ln kousků  ·  potvrzení jsme poslali na váš e-mail</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Stránka se načítala příliš dlouho.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Stránka vede mimo pokladnu.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Stránka přestala fungovat.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Pokladnu se nepodařilo otevřít. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Teď o %1 levněji</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>do práce</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>na rande</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>na večírek</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>na svatbu</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>na dovolenou</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>na cesty</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>na každý den</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>na víkend</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>do školy</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>na pohovor</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>na promoci</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>na festival</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>na pláž</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>na večer ve městě</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>na brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>do posilovny</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>na slavnostní příležitost</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Nově v nabídce</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Podle vašeho vkusu</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Novinky týdne</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Novinka týdne</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Ručně vybráno</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Novinka týdne · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Podle vašeho vkusu</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Milují to zákazníci jako vy</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Podle toho, co si prohlížíte</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Právě v kurzu</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Odpovídá hledání: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Ve vašem stylu: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Hodí se %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Styl: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>sladký</translation>
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
        <translation>elegantní</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalistický</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantický</translation>
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
        <translation>gotický</translation>
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
        <translation>francouzský</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>drsný</translation>
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
        <translation>festivalový</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>klasický</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportovní</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>šik</translation>
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
        <translation>korejský</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japonský</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>nový čínský</translation>
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
        <translation>tichý luxus</translation>
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
        <translation>roztomilý</translation>
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
        <translation>ženský</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgynní</translation>
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
        <translation>formální</translation>
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
        <translation>avantgardní</translation>
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
        <translation>Domů</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Výprodej</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Schránka</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Příliš mnoho pokusů. Chvíli počkejte a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Platnost přihlášení vypršela. Přihlaste se znovu.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Zadejte svou e-mailovou adresu.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Některé údaje asi nejsou správně. Zkontrolujte je a zkuste to znovu.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET má právě potíže. Zkuste to za chvíli.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Nepovedlo se. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Přišla neočekávaná odpověď. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>S LOOMSTREET se nepodařilo spojit. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Aplikaci chybí nastavení.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Vypršel časový limit. Zkuste to znovu.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Ve schránce čeká ještě %Ln oznámení.</numerusform>
            <numerusform>Ve schránce čekají ještě %Ln oznámení.</numerusform>
            <numerusform>Ve schránce čeká ještě %Ln oznámení.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Systémová upozornění</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Novinky k účtu a službám</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Novinky k objednávkám</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Objednávka potvrzena, odeslána a doručena</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Vrácení peněz a zboží</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Vrácené peníze a průběh vrácení</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Odpovědi zákaznického servisu</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Když vám zákaznický servis odpoví</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Hlídané kousky jsou znovu k mání</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Uložené nebo prohlížené kousky zlevní</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Dění na Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Lajky, komentáře, noví sledující a zprávy</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Změny úrovně, body a nové kupony</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Akce a události</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Výprodeje, nové dropy a události obchodu</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Odeslána příloha</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Objednáno</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Vaše objednávka je potvrzená. Za několik minut se objeví v Objednávkách.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Objednávka %1 je potvrzená. Za několik minut se objeví v Objednávkách.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET se nepodařilo aktualizovat</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Klikněte nahoře v okně na „Aktualizovat“ a nainstalujte novou verzi z obrazu disku.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Ukázka oznámení</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Tady se objeví novinky k objednávkám a odpovědi zákaznického servisu.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Šatník</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Vše, co máte, na jednom místě</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Studio outfitů</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Spojte kousky a podívejte se na celek</translation>
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
        <translation>Uložené outfity</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Nápady na outfity</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nové způsoby, jak nosit, co máte v šatníku</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Poradce velikostí</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Vaše míry a velikost, která k nim sedí</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Hledání podle obrázku</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Najděte kousek podle jeho obrázku</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Porovnání</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Až čtyři kousky vedle sebe</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Kontrola aktualizací…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Máte nejnovější verzi</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Stahuje se LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Kontrola staženého souboru…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Instaluje se LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Aktualizace se nepodařilo zkontrolovat</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Aktualizaci se nepodařilo stáhnout</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Připraveno k instalaci</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Nainstalovat aktualizaci</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1: připraveno k instalaci</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 je nejnovější verze.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET se zavře a nahradí ho nová verze.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Staženo. Dokončete restartem aplikace, jinak se nainstaluje při příštím ukončení.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>V okně, které se právě otevřelo, přetáhněte LOOMSTREET na Aplikace a zvolte „Nahradit“. Pak LOOMSTREET znovu otevřete.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET se v tomto počítači nepodařilo nahradit. Nainstalujte novou verzi z obrazu disku. Zabere to pár sekund.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Vaše verze už není podporovaná.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Aktualizace je stažená. Dokončete restartem LOOMSTREET, jinak se nainstaluje při příštím ukončení.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Aktualizace se nepodařilo zkontrolovat. Zkontrolujte připojení a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Stažení se nezdařilo (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Stažený soubor je neúplný nebo se cestou změnil. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Stažený soubor se nepodařilo přečíst.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Stažený soubor nepodepsal LOOMSTREET, proto nebyl otevřen.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Stáhnout a nainstalovat</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Restartovat a aktualizovat</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Otevřít obraz disku</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Zdá se, že připojení k internetu nefunguje.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira příliš dlouho neodpovídá.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Posíláte zprávy příliš rychle. Chvíli počkejte.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>V této podobě se zprávu nepodařilo odeslat.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET má právě potíže.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>S LOOMSTREET se nepodařilo spojit.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Vyberte velikosti: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Mezitím vyprodáno a nepřidáno: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Pokladnu se nepodařilo otevřít. Zkontrolujte připojení a zkuste to znovu.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Výška nebo váha asi nejsou správně. Zkontrolujte čísla a jednotky.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Některá z měr asi není správně. Zkontrolujte číslo nebo nechte pole prázdné.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Volný</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Přiléhavý</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Klasický</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>S čím to nosit: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Tato zpráva nebyla potvrzena. Můžete to zkusit znovu.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Konverzace je aktuální</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira odpovídá</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira odpovídá. Tyto zprávy můžete poslat za chvíli.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Témata jsou uložena v tomto počítači. Mira si pamatuje vaši společnou konverzaci.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Pomoz mi něco najít</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Sestav mi outfit z mého šatníku</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Co si dnes večer obléct</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET nesmí zjistit, kde jste. Zadejte místo toho město.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Polohu se nepodařilo zjistit. Zadejte místo toho město.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Toto město neznáme. Zkuste větší poblíž.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira teď nemůže hovor přijmout. Zkuste to za chvilku.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira má jiný hovor. Zkuste to za minutu.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Na lince to zaškobrtlo. Zopakujete to?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Spojení se přerušilo. Zavolejte znovu a pokračujte.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Přístup k mikrofonu je vypnutý. Zapněte ho v „Nastavení systému › Soukromí a zabezpečení › Mikrofon“ a zavolejte znovu.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Mikrofon se nepodařilo spustit. Zkontrolujte, zda je připojený, a zavolejte znovu.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Ztlumení mikrofonu během hovoru</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Přidáno do košíku</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Přidáno do košíku: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Nepodařilo se přidat. Zkuste to na stránce produktu.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Už tam jdeme…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Otevíráme: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Podle systému</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nepřipojeno</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Svrchní oblečení</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Vrchní díly</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Spodní díly</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Šaty</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Boty</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Drobnosti</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Mírně</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Slunečno</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Polojasno</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Zataženo</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Mlha</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Mrholení</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Deštivo</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Sněžení</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Přeháňky</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Bouřky</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Tento soubor už neexistuje.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Tento soubor se nepodařilo přečíst.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Tento soubor je prázdný.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Tento soubor je větší než 10 MB. Vyberte menší.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Posílat lze jen obrázky a soubory PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Tato zpráva možná nedorazila.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Skryté</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Na cestě</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Doručené</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Zpráva pro zákaznický servis</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Konverzace se zákaznickým servisem</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
</context>
</TS>
