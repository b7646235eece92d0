<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Buradasınız</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Tam sayfada aç</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Gönderiliyor…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Daha az göster</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tümünü göster</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter gönderir, Shift+Enter yeni satıra geçer</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Gönder</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Kaldır: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Daha önce</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Yıla dön</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Daha sonra</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Genişletilmiş</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Daraltılmış</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>En yeniye git</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln yeni mesaj</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Çevrimdışı görünüyorsunuz. Bağlantınızı kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Parolayı gizle</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Parolayı göster</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, önceki fiyat %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Tükendi</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Meşgul</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Favorilerden kaldır</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Favorilere ekle</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Önceki</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Sonraki</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, tükendi</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, size önerilen</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>5 üzerinden %L1, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>5 üzerinden %L1</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Azalt</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Artır</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Hesabınız</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Çıkış yap</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Gardırobunuz aklımızda</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Buradaki her şeyi hesap açmadan gezebilir ve satın alabilirsiniz. Hesabınız olursa mağaza paketlerinizin nerede olduğunu ve neyi beklediğinizi bilir.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Giriş yap</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Hesap oluştur</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Siparişler tek yerde</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Her paketin yeri belli, iade için fiş aramak yok</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Önemli bir şey olunca haberiniz olur</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Bedeniniz geri geldi ya da fiyat düştü</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Üyelik ve kuponlar</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Puanlar, seviyeler ve ayrıcalıkları</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Sizi tanıyan bir ödeme</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Adresiniz hazır bekler</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Müşteri hizmetleri</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Siparişler, iadeler ve bedenler</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Siparişler</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Yoldakiler ve önceki alışverişler</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Paket takibi</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Paket ya da sipariş numarasıyla</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>İadeler</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Bir parçayı iade edin</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Sizin için</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Favoriler</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Henüz kayıtlı parça yok</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln parça</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alarmlar</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Yeniden stokta ve daha uygun fiyatlar</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Üyelik</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Seviyeniz ve puanlarınız</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kuponlar</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Ödemede kullanmanız için</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Hesap</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Hesap olmadan</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Ad, doğum günü ve bültenler</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Gizlilik</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Mağazanın sizden öğrendikleri</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Bu bilgisayarda saklananlar</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Hesabı sil…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Anahtarlığınız yanıt vermiyor</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Oturumunuzu o korur, onsuz giriş yapılamaz. Kilidini açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Yeniden stokta</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Fiyat düşüşü</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Stoklara döndü</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Fiyatı düştü</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>Alarm kurduğunuzda %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Bu alarmı durdur</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln alarm</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Bir parça geri geldiğinde veya fiyatı düştüğünde %1 adresine e-posta göndeririz.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Henüz alarm yok</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Bedeninizde tükenen bir parçada “Gelince haber ver”e, diğerlerinde “Fiyatı düşünce haber ver”e basın.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Yeni gelenler</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Alarmlarınızı görmek için giriş yapın</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Bir parça bedeninizde yeniden stoğa girdiğinde veya fiyatı düştüğünde haber veririz.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Bunun için e-posta göndermeyeceğiz.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln parça</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Tasarımcılar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln tasarımcı</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Tasarımcı bul</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Harfler</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Diğer tasarımcılar</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>%1 harfiyle başlayan tasarımcılar</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>“%1” ile eşleşen tasarımcı yok</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Yazımı kontrol edin veya tümüne göz atın.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Tüm tasarımcıları göster</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Burada henüz bir şey yok</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Her hafta yeni parçalar geliyor.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Keşfet</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln değerlendirme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln adet satıldı</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Ön satış</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>En çok tercih edilen: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Bunu nasıl kombinlerim?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Karşılaştır</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Kaydettiğiniz veya baktığınız parçalarla</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>Dünyanın her yerine ÜCRETSİZ kargo</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>%1 ve üzeri alışverişlerde</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Bilmekte fayda var</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>İthalat vergileri dahil</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Kargo ücreti ödemede hesaplanır</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Gelince size e-posta göndeririz</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Gelince haber ver</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Eklendi</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Sepete ekle</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Vazgeçmek için basın</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Ödeme açılıyor…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Hemen al</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>%1 ile görüşme</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Pencerede aç</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Bitir</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Görüşmeyi bitir</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Görüşmeyi göster</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Ara: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Yeniden ara</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofon açık</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofon kapalı</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Aranıyor…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Düşünüyor</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Konuşuyor</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Sesiniz kapalı</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Dinliyor</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Görüşme bitti</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Sesi aç</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Sesi kapat</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>İndirim kodu</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Sepetiniz yüklenemedi</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Ürünleriniz güvende. Bağlantınızı kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Sepetiniz boş</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Eklediğiniz parçalar burada görünür.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Alışverişe devam et</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Sepetten çıkarıldı: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Önceki sepetinizin süresi doldu. İçinde %Ln parça vardı.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Geri ekle</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Adet: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Sepetten çıkar</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Sepet</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Sepet</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Yan panelde göster</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Ara toplam</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>İndirim</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Toplam</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>İthalat vergileri dahil · Kargo ücreti ödemede hesaplanır</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Ödeme</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Ödemeyi ödeme penceresinde tamamlayın. Sepetiniz olduğu gibi kalır.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Mevcut değil</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Koleksiyon</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>Son 30 günde %Ln yeni parça</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Bu koleksiyon mevcut değil</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Adı değişmiş olabilir veya bu ülkede satılmıyordur: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Bu filtrelere uyan parça yok</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Daha fazlası için bir filtreyi kaldırın.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Kombini tamamlayın</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Birlikte giyilecek parçalar</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Bunlar da beğenildi</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Bu parçaya bakanların beğendikleri</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Bunları da beğenebilirsiniz</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Karşılaştırmaya parça ekle</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Parça ekle</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Favorilerinizden ve baktıklarınızdan</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Parçaları favorilere ekleyin veya inceleyin, sonra buraya ekleyin.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>%1 ile karşılaştır</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Bedenler</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Kumaş içeriği</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Karşılaştırmadan çıkar</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Bulunduğunuz ülkede mevcut değil.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>belirtilmemiş</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Bedenler: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Başa dön</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Başkaları ne giyiyor</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Göz at</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Takip ettiklerim</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Tasarımcılarınızdan haberler</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Yenilikleri gör</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Gardırop</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Bugün ne giysem?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Gardırobu aç</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Siparişleriniz ve alarmlarınız</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Üyeliğiniz</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Ayrıcalıkları gör</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Paketim nerede?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Sipariş %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Siparişi gör</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Fiyatı düşenler</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Parçalarınız şimdi daha uygun</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Sevdiklerinizi saklayın</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln parça kayıtlı</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Favorileri gör</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Hesabınız silinsin mi?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Profiliniz, alarmlarınız, üyeliğiniz ve sipariş listeniz kalıcı olarak silinir. Yoldaki siparişleriniz yine de gelir. Bu işlem geri alınamaz.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Onaylamak için e-posta adresinizi yazın</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Hesabı sil</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Vazgeç</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Koleksiyonlar</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtreler</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Tüm filtreleri temizle</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Filtrede bul: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Bu adda bir şey yok</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Daha az göster</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Tümünü göster (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>En az</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>En çok</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Parçaları göster</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>%Ln parçayı göster</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Filtreleri kapat</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln seçildi, %L1 parça karşılaştırılabilir</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln seçildi</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>İki ila dört parça seçin</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Önce en yeniler</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Fiyat: artan</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Fiyat: azalan</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Tümünü gördünüz: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Koleksiyon: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Aç: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Beden seçin</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Beden</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Size önerilen: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Sepetinizde</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Çıkar</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%Ln parçadan %L1 tanesi</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Bunun yerine: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Şu anda benzeri yok.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira’nın seçimi</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Kombininiz</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Bedenleri seçin, beğenmediğinizi değiştirin, sizde olanı çıkarın.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>inç</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Ölçüleriniz</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira bedenlerinizi bunlara göre belirler. Ölçüler sohbetinize eklenir, bir kopyası çıkış yapana kadar bu bilgisayarda kalır.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Birim</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrik sistem</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>İngiliz sistemi</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Boy (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>fit</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Kilo (%1)</translation>
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
        <translation>Göğüs (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Bel (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Kalça (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Bilmiyorsanız bunları boş bırakın.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Tercih ettiğiniz kalıp</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Mira’ya gönder</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Bu bilgisayardan sil</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Bununla kombin yap</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Beden seçip sepete ekle</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>%1 için mesaj yazın</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Kombinin odağı: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Parçalarım · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Parçalarımla kombinle</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Hava durumu</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Daha fazla</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Kombini gör: her biri bedeninizde %Ln parça</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Yeni konu</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Konular…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Yenile</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Parçalarımla kombinle…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Ölçülerim…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Hava durumu…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Sayfanın yanında göster</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Öneriler</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Gönder: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>%1 ile sohbet</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Yeniden adlandır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Konunun adı</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>“%1” silinsin mi?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Kalsın</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Konular</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Siz</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Ölçülerimi gir</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 önce bunları kullanır, yalnızca eksik olan yere yeni bir parça ekler.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Henüz kombinlenecek parça yok</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Sepetinizdeki ve favorilerinizdeki parçalar burada görünür.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln seçildi, en fazla bu kadar</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Sepetinizde</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Favorilerinizde</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Neredesiniz? Kombin güne uysun.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Havaya göre kombinle</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Şehir</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ayarla</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Konumumu kullan</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Nereye hazırlanıyorsunuz?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Nereye gideceğinizi, sevdiğiniz bir parçayı veya bütçenizi söyleyin; kombini %1 hazırlasın.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Siparişleriniz ve alarmlarınızla ilgili haberler için giriş yapın.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Göster</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Müşteri hizmetleri</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Bildirimler</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Bildirimlerinizi görmek için giriş yapın</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Yeni bir şey yok</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Yoldaki siparişler, yeniden stoğa giren parçalar ve düşen fiyatlar burada haber verilir.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Siparişleriniz ve takip ettiğiniz parçalarla ilgili her şey burada olacak.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Okunmadı</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Tümünü okundu say</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Bildirim ayarları</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Tahmini teslimat: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Sipariş</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Sipariş tarihi: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Paketler</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Parçalar</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>İadeler ve para iadeleri</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Bu sipariş burada değil</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Yeni siparişiniz birkaç dakika içinde burada görünür.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Başka bir hesaba ait olabilir.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Bu siparişi görmek için giriş yapın</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Bir paketi hesap olmadan da numarasıyla takip edebilirsiniz.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Adet: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Gizli</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Siparişi yeniden göster</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Siparişi gizle</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Hangi siparişler</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Yolda</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Teslim edildi</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Tüm siparişleriniz gizli</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Yolda bir şey yok</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Henüz teslim edilen yok</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>İade yok</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Bazıları gizli.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Gizli siparişleri göster</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Tüm siparişler</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Siparişiniz bu sayfaya geliyor</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Henüz sipariş yok</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Siparişleriniz, size gelirken nerede olduklarıyla burada görünür.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Siparişlerinizi görmek için giriş yapın</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Neredeler, içlerinde ne var ve iade nasıl yapılır.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Bu bilgisayarda siparişlerinizden gizlendi.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Adım %L1 / %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Teslimat adresi</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>İade başlat</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Paket %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Bu numara henüz bilinmiyor</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Yeni bir paketin kargo firmasında görünmesi bir gün sürebilir.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Kargo firmasının sayfasını aç</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Kargo firmasından henüz bilgi gelmedi.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Paketin yolculuğu</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Geçici olarak kullanılamıyor</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Bu özellik şimdilik durduruldu. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Listeden kaldır</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Bu parça mevcut değil</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Tamamen tükenmiş olabilir veya bu ülkede satılmıyordur: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Fiyatı düşünce size e-posta göndeririz</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Fiyatı düşünce haber ver</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln parça, gördüğünüz zamankinden daha uygun</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Henüz takip edilecek parça yok</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Şu anda fiyatı düşen yok</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Bir parçayı kaydedin veya inceleyin, fiyatı düşünce burada görün.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Kaydettiğiniz ve baktığınız parçaların fiyatı aynı, ya da onları başka bir para biriminde gördünüz.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>İadesiz satış</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Görseller</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Görsel %L1 / %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, görsel %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Tümünü gör</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>İlgilenmiyorum</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>%Ln gün sonra: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Mağazanın yanıtı: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Değerlendirmeler</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Daha fazla değerlendirme</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Açıklama</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Öne çıkanlar</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Sorular ve yanıtlar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Doğum günü</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Tarih seçin</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-posta</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Giriş yaptığınız adres</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Ülke</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Değişiklikleri sil</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Kaydedildi</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Üyelik başlangıcı: %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Bültenler</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>E-postayla</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Yeni parçalar ve fırsatlar, adres: %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>SMS ile</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Yukarıdaki telefon numaranız gerekir</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Profilinizi görmek için giriş yapın</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Adınız, telefon numaranız ve size neler gönderebileceğimiz.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Keşfet</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Biraz göz atın, baktıklarınıza uyanları burada bulun.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Son baktıklarınız</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Tümünü temizle</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Henüz baktığınız parça yok</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Baktığınız parçalar burada toplanır, kolayca geri dönersiniz.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Giriş yapın, gelir gelmez e-posta gönderelim.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>E-posta %1 adresine gönderilecek. Artık istemiyorsanız yeniden basın.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>E-posta %1 adresine gönderilecek.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Görsel %L1: büyüt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>“%1” için %Ln sonuç</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Ne aramıştınız?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>“%1” için sonuç yok</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Yazımı kontrol edin, daha genel bir kelime deneyin veya “Yeni gelenler”e göz atın.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Bu filtrelere uyan bir şey yok</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>“%1” için daha fazlasını görmek üzere bir iki filtreyi kaldırın</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Çıkış yapılsın mı?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Sepetiniz ve favorileriniz bu bilgisayarda kalır. Yeniden giriş yaptığınızda siparişleriniz ve üyeliğiniz geri gelir.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Beden tablosu</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Beden birimi</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sırala: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Araçlar</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Şu anda araç yok.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Paket veya sipariş numarası</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Kargoya verildiğini bildiren e-postada yazar.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Bu numarayı tanımıyoruz. Kontrol edin veya yarın yeniden deneyin: Yeni bir paketin görünmesi bir gün sürebilir.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Takip et</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Bu sayfa mevcut değil</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Taşınmış olabilir veya başka bir sürümle gelecektir.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Bir parçadaki kalbe basın, sizi burada beklesin. Fiyatını da takip ederiz.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Hesabınız: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Hesabınız aranıyor…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Giriş yapılmadı</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Siparişler, alarmlar ve üyelik için hesap gerekir. Gezinmek ve satın almak için gerekmez.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Renkler</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Masaüstüyle aynı</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Açık ve koyu arasında masaüstünü izler</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Masaüstünün pencere çerçevesi</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Diğer pencerelerdeki gibi, sekmelerin üstünde başlık çubuğu</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Git</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Konuşulanlar</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Ne aradığınızı veya ne için olduğunu söyleyin.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Aramayı iptal et</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Sohbet</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Yazmak için de sohbette devam et</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>%1 ile görüşme, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Görüşme süresi: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Sohbette göster</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Küçült</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Kapat ve sohbette devam et</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Görüşmeyi bitir ve kapat</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Yalnızca görüntü</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Büyüt</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>%1 ile görüşmeyi göster</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>%1 ile görüşme – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Tam sayfaya genişlet</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>“Siparişler” altında istediğiniz zaman takip edin.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Bu sayfayı yeniden yükle</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Shopify ile güvenli ödeme  ·  Sepetiniz olduğu gibi kalır</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Bu sayfadaki bir bağlantı ödemenin dışına çıkıyor: %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Tarayıcıda aç</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Ödeme burada gösterilemiyor</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Tarayıcıda devam et</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET yapılandırılmamış</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Proje klasöründe scripts/sync-secrets.sh dosyasını çalıştırın, sonra yeniden derleyin.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Baktıklarım</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Ülke ve para birimi</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Mağazanın dili</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Parçaları listenin yanında aç</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Geniş pencerelerde parça, bulunduğu yerin yanında gösterilir</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Ölçü birimi</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Santimetre ve kilogram</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>İnç ve libre</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Adsız sayfa</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Slayt gösterisini duraklat</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Slayt gösterisini oynat</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Boşluk</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uzaklaştır</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Yakınlaştır</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Bu görsel yüklenemedi</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Ülke ve dil: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Ülke ve dil</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Dil ara</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Ülke ve para birimi ara</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Diller</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Ülkeler</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>“%1” ile eşleşen dil yok</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>“%1” ile eşleşen ülke yok</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Pencerede</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Pencerenin üstünde, birkaç saniyelik bir şerit.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Masaüstünde</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Masaüstünüzün uygulama bildirimlerini gösterdiği yerde, açık pencere yokken de.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Sesli</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Uygulama simgesinde sayı</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Okumadıklarınızın sayısı.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Örnek göster</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Hangi konularda</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Bu bilgisayarda artık önerilmeyecek.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Yan panel</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Yeni sekmede aç</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Yan paneli kapat</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Yan panelin genişliği</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Mağazanın ne göstereceğini seçmesine yardım et</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Hangi sayfa ve parçalara bakıldığını, nelerin sepete konup satın alındığını ve uygulamanın ne zaman beklenmedik şekilde kapandığını, adınız olmadan bildirir. Kapalıyken yalnızca gerekli olanlar gönderilir.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Her durumda</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Gerekli olan, sizin istediğinizdir</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Açtığınız sayfalar, aramalarınız, sepetiniz ve siparişleriniz mağazaya ulaşmak zorundadır.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Sakladıklarınız bu bilgisayarda kalır</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Favorileriniz, baktıklarınız ve aradıklarınız, siz temizleyene kadar.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Oturumunuz anahtarlıkta durur</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Anahtarlık yoksa, yalnızca sizin okuyabildiğiniz bir dosyada. 60 gün sonra ve her çıkışınızda sona erer.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Ekran görüntüsü kaydedildi</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Ekran görüntüsü kaydedilemedi</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Resimler klasörünüzde yer olduğunu kontrol edin.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Klasörü göster</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Arayın veya bağlantı yapıştırın</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Görselle ara…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ses</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Güncellemeler</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Bölümler</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>%1 ile devam et</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Giriş yapılıyor…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 tarayıcınızda açılır. Orada giriş yapın, burada da giriş yapmış olursunuz.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopyalandı</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Adresi kopyala</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Kendiliğinden açılmayan tarayıcı için</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Burada bir şey olmadı mı?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Tarayıcınızın en son açtığı bağlantıyı yapıştırın</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>“wrenfieldstore://” ile başlar. Bazı tarayıcılar bunu adres çubuğunda gösterir.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Girişi tamamla</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Hesabınızı oluşturun</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Hesabınıza giriş yapın</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Giriş yolları</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>E-posta kodu</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>%1 adresine bir kod gönderdik. Ulaşması bir dakika sürebilir.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Adresin size ait olduğundan emin olmak için önce bir kod göndeririz.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Giriş için size e-postayla bir kod göndeririz. Parola gerekmez.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Doğrulama kodu</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>%L1 sn sonra yeniden gönder</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Yeniden gönder</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Kodu yeniden gönder</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Parola (en az 6 karakter)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Ad (isteğe bağlı)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Parolanızı mı unuttunuz? E-posta koduyla giriş yapın</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Bana kod gönder</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>veya şununla devam edin</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Dene</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Mikrofonu dinlemeyi durdur</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Mikrofonu dene</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Ses düzeyi</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Görüşme için kullanılıyor.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Bir şey söyleyin: çubuk sesinizi izler. Hiçbir şey bu bilgisayardan çıkmaz.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Sesinizin düzeyini gösterir. Hiçbir şey bu bilgisayardan çıkmaz.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Hoparlör</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>Görüşme sürdükçe %1, nerede olursanız olun mikrofonu kapatır.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M tuşu görüşme penceresinde mikrofonu kapatır.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Ara: “%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Son aramalar</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Bakılan ve kaydedilenler</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Önerilecek parça yok. Enter tümünde arar.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>seçmek için</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>kapatmak için</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>“%1” aramasını son aramalardan kaldır</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Görsel: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Tarayıcıda açılır</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Mesaj yazın</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Görsel veya PDF ekle</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Görseller ve PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Görseli veya PDF’i buraya bırakın</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Nasıl yardımcı olabiliriz?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Sipariş, iade veya beden hakkında sorun. Görseller de işe yarar.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Siparişim nerede?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>İade yapmak istiyorum</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Hangi bedeni almalıyım?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Yükleniyor</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Kapat: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Sağda yeni sekme</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Sekmenin sabitlemesini kaldır</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Sekmeyi sabitle</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Sekmeyi yeni pencereye taşı</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Kapatılan sekmeyi yeniden aç</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Sekmeyi kapat</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Diğer sekmeleri kapat</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Kenar çubuğunu genişlet</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Kenar çubuğunu daralt</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Sekmeler</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Yeni sekme</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Kaldırıldığı yer: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Güncelle</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Son denetim: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Henüz denetlenmedi</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Bu LOOMSTREET kopyası kendini güncelleyemez.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET yeni sürümleri kendisi arar.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET şimdilik yeni sürümleri kendisi aramıyor.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Yeni sürümler uygulamayı aldığınız yerden gelir. Yine de buradan denetleyebilirsiniz.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Açılışta ve her altı saatte bir. Bulduğunu arka planda indirir, çıktığınızda yükler; bunun olamadığı yerde size haber verilir.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Mağaza bunu durdurdu. Yine de buradan denetleyebilirsiniz.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Güncellemeleri denetle…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Yenilikler</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Bu sürümü atla</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Küçült</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Geri yükle</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Büyüt</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Pencereyi kapat</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Güvenli bağlantı: %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Bağlantı güvenli değil</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Hesabınız silindi.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Hesabınız silinemeden oturumunuz kapandı. Silmek için yeniden giriş yapın.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Kargo</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Ücretsiz</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Vergiler</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln paket</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Onaylandı</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Hazırlandı</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>İptal edildi</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>İşlemde</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Kargo firması bekleniyor</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Dağıtımda</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Teslimat sorunu</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>İade istendi</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>İade onaylandı</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Para iadesi yapıldı</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>İade reddedildi</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 ve %Ln parça daha</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>En fazla %Ln karakter kullanın.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Bir telefon numarası girin, örneğin %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Bir tarih girin, örneğin %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Geçmiş bir tarih girin.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Girdiğiniz bir bilgi kabul edilmedi. Kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Geçerli bir e-posta adresi girin.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Bu kod yanlış veya süresi dolmuş. Yenisini isteyin.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Çok fazla deneme yapıldı. Bir dakika bekleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-posta ve parola eşleşmiyor. Yeniden deneyin veya e-posta koduyla giriş yapın.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Bu giriş yöntemi henüz kullanılamıyor.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Bu hesapta kullanabileceğimiz bir e-posta adresi yok. Başka bir yöntem deneyin.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Giriş iptal edildi.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Giriş yapılamadı. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Kodun altı rakamını girin.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>En az 6 karakterli bir parola seçin.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Parolanızı girin. En az 6 karakterlidir.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Bu, girişinizin sonunda açılan bağlantı değil. Doğrusu “wrenfieldstore://” ile başlar.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREET yardım merkezi</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Sözleşmeler</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Yeni pencere</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Sekmeyi sabitle veya sabitlemeyi kaldır</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Sekmeyi geri taşı</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Sekmeyi ileri taşı</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Yan paneldeki ürünü tam sayfada aç</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Yan paneldeki ürünü yeni sekmede aç</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Ekran görüntüsü al</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Tam ekran</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Bölümün ana sayfasına git</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Sonraki sekme</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Önceki sekme</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Öne çıkanlar</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>En yeniler</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Fiyat: artan</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Fiyat: azalan</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Çok satanlar</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Kadın</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Erkek</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Lüks</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Çanta</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Aksesuar</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>En az %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>En çok %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>İadesiz satış</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Yalnızca bir adet kaldı</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Yalnızca %Ln adet kaldı</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>En uygun eşleşme</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Bu parça iade edilemez</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Sipariş vermeden önce beden ve rengi kontrol edin</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Size özel üretim</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Yalnızca kusurlu gelirse iade edilir</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Siparişe özel üretilir, biraz daha zaman alır</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>30 gün içinde, kullanılmamış, tüm içeriğiyle</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Kutuyu, toz torbasını ve belgeleri saklayın</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>30 gün içinde, tabanları temiz, kutusunda</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Önce evde deneyin</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>30 gün içinde, giyilmemiş, etiketli</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Önce seçim yapın: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>Sepetinizde %Ln parça</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Bu kod uygulanamadı. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1” sepetinizdeki parçalarda geçerli değil.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Dünyanın her yerine ÜCRETSİZ kargo kazandınız</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Dünyanın her yerine ÜCRETSİZ kargo için %1 daha ekleyin</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Sipariş verildi. Birkaç dakika içinde “Siparişler” altında görünür.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>%1 numaralı sipariş verildi. Birkaç dakika içinde “Siparişler” altında görünür.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln parça  ·  onay e-postanıza gönderildi</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Sayfanın yüklenmesi çok uzun sürdü.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Sayfa ödemenin dışına çıkıyor.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Sayfa çalışmayı durdurdu.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Ödeme başlatılamadı. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Şimdi %1 daha uygun</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>iş</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>romantik buluşmalar</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>partiler</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>düğünler</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>tatil</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>seyahat</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>her gün</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>hafta sonu</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>okul</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>iş görüşmeleri</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>mezuniyet</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>festivaller</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>plaj</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>gece eğlenceleri</translation>
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
        <translation>spor salonu</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>resmi davetler</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Yeni gelenler</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Sevdiklerinize göre</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Bu hafta yeni</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Bu hafta yeni</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Özenle seçildi</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Bu hafta yeni · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Sevdiklerinize göre</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Zevki size benzeyenlerin favorisi</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Baktıklarınıza göre</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Şimdi trend</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Aramanıza uygun: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Zevkinize göre: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>%1 için</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Tarz seçimi: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>tatlı</translation>
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
        <translation>zarif</translation>
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
        <translation>romantik</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>sokak</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>gotik</translation>
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
        <translation>Fransız</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>iddialı</translation>
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
        <translation>koket</translation>
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
        <translation>klasik</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportif</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>şık</translation>
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
        <translation>Kore</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>Japon</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>yeni Çin</translation>
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
        <translation>sessiz lüks</translation>
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
        <translation>seksi</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>sevimli</translation>
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
        <translation>feminen</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androjen</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>iş giyimi</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>resmi</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>ışıltılı</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>avangart</translation>
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
        <translation>Ana sayfa</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>İndirim</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Gelen kutusu</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Çok fazla deneme yapıldı. Biraz bekleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Oturumunuzun süresi doldu. Yeniden giriş yapın.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>E-posta adresinizi girin.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Bazı bilgiler doğru görünmüyor. Kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET şu anda sorun yaşıyor. Birazdan yeniden deneyin.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Bu olmadı. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Beklenmedik bir yanıt geldi. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET’e ulaşılamadı. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Uygulamanın yapılandırması eksik.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>İstek zaman aşımına uğradı. Yeniden deneyin.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Gelen kutunuzda %Ln bildirim daha bekliyor.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Sistem bildirimleri</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Hesap ve hizmet haberleri</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Sipariş haberleri</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Sipariş onaylandığında, kargolandığında ve teslim edildiğinde</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Para iadeleri ve iadeler</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Yapılan para iadeleri ve iade haberleri</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Müşteri hizmetleri yanıtları</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Müşteri hizmetleri size yanıt verdiğinde</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Alarm kurduğunuz parçalar yeniden stoğa girdiğinde</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Kaydettiğiniz veya baktığınız parçaların fiyatı düştüğünde</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Vessa hareketleri</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Beğeniler, yorumlar, yeni takipçiler ve mesajlar</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Seviye değişiklikleri, puanlar ve yeni kuponlar</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Kampanyalar ve etkinlikler</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>İndirimler, yeni çıkanlar ve mağaza etkinlikleri</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Bir ek gönderildi</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Sipariş verildi</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Siparişiniz onaylandı. Birkaç dakika içinde “Siparişler” altında görünür.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>%1 numaralı sipariş onaylandı. Birkaç dakika içinde “Siparişler” altında görünür.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET kendini güncelleyemedi</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Yeni sürümü disk görüntüsünden yüklemek için pencerenin üstündeki “Güncelle”ye tıklayın.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Bildirim önizlemesi</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Yeni sipariş haberleri ve müşteri hizmetleri yanıtları burada görünür.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Gardırop</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Sahip olduğunuz her şey tek yerde</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Kombin stüdyosu</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Parçaları bir araya getirin, bütün olarak görün</translation>
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
        <translation>Sakladığınız kombinler</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Kombin fikirleri</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Gardırobunuzdakileri giymenin yeni yolları</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Beden önerisi</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Ölçüleriniz ve onlara uyan beden</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Görselle arama</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Bir parçayı görselinden bulun</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Karşılaştır</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Dört parçaya kadar yan yana</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Güncellemeler denetleniyor…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Sürümünüz güncel</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 indiriliyor</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>İndirilen dosya denetleniyor…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 yükleniyor</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Güncellemeler denetlenemedi</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Güncelleme indirilemedi</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Yüklemeye hazır</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Güncellemeyi yükle</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 yüklemeye hazır</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 en yeni sürüm.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET kapanır, yeni sürüm onun yerini alır.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>İndirildi. Bitirmek için yeniden başlatın, yoksa bir sonraki çıkışta yüklenir.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Az önce açılan pencerede LOOMSTREET’i “Uygulamalar” üzerine sürükleyin ve “Değiştir”i seçin. Sonra LOOMSTREET’i yeniden açın.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET bu bilgisayarda kendini değiştiremedi. Bunun yerine yeni sürümü disk görüntüsünden yükleyin. Birkaç saniye sürer.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Kullandığınız sürüm artık desteklenmiyor.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Güncelleme indirildi. Bitirmek için LOOMSTREET’i yeniden başlatın, yoksa bir sonraki çıkışta yüklenir.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Güncellemeler denetlenemedi. Bağlantınızı kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>İndirme başarısız oldu (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>İndirme eksik kaldı veya yolda değişti. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>İndirilen dosya okunamadı.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>İndirilen dosya LOOMSTREET tarafından imzalanmamış, bu yüzden açılmadı.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>İndir ve yükle</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Güncellemek için yeniden başlat</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Disk görüntüsünü aç</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Çevrimdışı görünüyorsunuz.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira’nın yanıtı çok gecikti.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Çok hızlı mesaj gönderiyorsunuz. Önce biraz bekleyin.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Bu mesaj bu haliyle gönderilemedi.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET şu anda sorun yaşıyor.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET’e ulaşılamadı.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Beden seçin: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Bu arada tükendi ve eklenmedi: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Ödeme başlatılamadı. Bağlantınızı kontrol edip yeniden deneyin.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Boy veya kilo doğru görünmüyor. Sayıları ve birimleri kontrol edin.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Ölçülerden biri doğru görünmüyor. Sayıyı kontrol edin veya boş bırakın.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Bol</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Dar</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Bunu nasıl kombinlerim: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Bu mesaj onaylanmadı. Yeniden deneyebilirsiniz.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Sohbet güncel</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira yanıtlıyor</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira yanıtlıyor. Bunları birazdan gönderebilirsiniz.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Konular bu bilgisayarda saklanır. Ortak sohbetlerinizi Mira hatırlar.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Bir şey bulmama yardım et</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Gardırobumdan kombinle</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Bu akşam ne giysem</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET’in konumunuzu görme izni yok. Bunun yerine şehrinizi yazın.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Konumunuz bulunamadı. Bunun yerine şehrinizi yazın.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Bu şehir bilinmiyor. Yakındaki daha büyük bir şehri deneyin.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira şu anda yanıt veremiyor. Birazdan yeniden deneyin.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira başka bir görüşmede. Bir dakika sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Hat bir an gitti. Yeniden söyler misiniz?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Hat kesildi. Konuşmaya devam etmek için yeniden arayın.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Mikrofon erişimi kapalı. Sistem Ayarları › Gizlilik ve Güvenlik › Mikrofon yolundan açın, sonra yeniden arayın.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Mikrofon başlatılamadı. Bağlı bir mikrofon olduğunu kontrol edip yeniden arayın.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Görüşmede mikrofonu kapat</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Sepetinize eklendi</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Sepetinize eklendi: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Eklenemedi. Ürün sayfasından deneyin.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Sizi oraya götürüyorum…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Açılıyor: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sistem varsayılanı</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Dış giyim</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Üst giyim</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Alt giyim</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Elbiseler</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Ayakkabılar</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Ekstralar</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Ilık</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Güneşli</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Parçalı bulutlu</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Çok bulutlu</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Sisli</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Çiseleyen yağmur</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Yağmurlu</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Karlı</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Sağanak</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Gök gürültülü</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Bu dosya artık yerinde değil.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Bu dosya okunamadı.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Bu dosya boş.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Bu dosya 10 MB’tan büyük. Daha küçüğünü seçin.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Yalnızca görseller ve PDF dosyaları gönderilebilir.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Bu mesaj ulaşmamış olabilir.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Gizlenenler</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Yolda</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Teslim edilenler</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Müşteri hizmetleri için mesaj yazın</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Müşteri hizmetleri ile sohbet</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
