<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ms" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Anda di sini</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Buka halaman penuh</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Menghantar…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Tunjukkan kurang</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tunjukkan semua</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter untuk hantar, Shift+Enter untuk baris baharu</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Hantar</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Cuba lagi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Buang</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Buang %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Sebelumnya</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Kembali ke tahun</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Seterusnya</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Terbuka</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Tertutup</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Ke yang terkini</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln mesej baharu</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Nampaknya anda di luar talian. Semak sambungan anda dan cuba lagi.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Sembunyikan kata laluan</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Tunjukkan kata laluan</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, dahulu %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Habis dijual</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Sibuk</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Buang daripada senarai hajat</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Simpan dalam senarai hajat</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Sebelumnya</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seterusnya</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, habis dijual</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, disyorkan untuk anda</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Dinilai %L1 daripada 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Dinilai %L1 daripada 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Kurangkan</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Tambah</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Buat asal</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Akaun anda</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Log keluar</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Almari anda, sentiasa diingati</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Semua di sini boleh dilihat dan dibeli tanpa akaun. Dengan akaun, kedai tahu di mana bungkusan anda dan apa yang anda nantikan.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Log masuk</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Buka akaun</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Semua pesanan di satu tempat</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Di mana setiap bungkusan, dan pemulangan tanpa mencari resit</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Khabar pada masa yang penting</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Saiz anda ada semula, atau harganya sudah turun</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Keahlian dan kupon</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Mata, peringkat dan keistimewaannya</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Pembayaran yang mengenali anda</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Alamat anda sudah tersedia</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Khidmat Pelanggan</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Pesanan, pemulangan dan saiz</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Pesanan</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Dalam penghantaran dan pernah dibeli</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Jejak bungkusan</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Dengan nombor bungkusan atau nombor pesanan</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Pemulangan</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Pulangkan barang</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Untuk anda</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Senarai hajat</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Belum ada yang disimpan</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln item</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Makluman</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Ada stok semula dan harga turun</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Keahlian</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Peringkat dan mata anda</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kupon</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Boleh digunakan semasa pembayaran</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Akaun</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Tanpa akaun</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Nama, hari lahir dan surat berita</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privasi</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Perkara yang kedai tahu tentang anda</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Disimpan pada komputer ini</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Padam akaun…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Gelang kunci anda tidak menjawab</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Gelang kunci menjaga data log masuk anda, dan tanpanya tiada sesiapa boleh log masuk. Buka kuncinya, kemudian cuba lagi.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Ada stok semula</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Harga turun</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Sudah ada stok semula</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Kini lebih murah</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 semasa makluman dibuat</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Hentikan makluman ini</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln makluman</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Kami akan menghantar e-mel ke %1 apabila item ada semula atau harganya turun.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Belum ada makluman</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Bagi item yang habis dalam saiz anda, tekan “Beritahu saya apabila ada semula”. Bagi item lain, “Beritahu saya jika harga turun”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Baharu tiba</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Log masuk untuk melihat makluman anda</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Kami beritahu anda apabila item ada semula dalam saiz anda, atau lebih murah.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Kami tidak akan menghantar e-mel tentangnya.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln item</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Pereka</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln pereka</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Cari pereka</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Kosongkan</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Huruf</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Pereka lain</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Pereka bermula dengan %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Tiada pereka sepadan dengan “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Semak ejaan, atau lihat kesemuanya.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Tunjukkan semua pereka</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Belum ada apa-apa di sini</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Item baharu tiba setiap minggu.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Terokai</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln ulasan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln terjual</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Prajualan</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Paling banyak dipilih: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Bantu saya gayakan ini</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Bandingkan</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Dengan item yang anda simpan atau lihat</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>Penghantaran PERCUMA ke seluruh dunia</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Untuk troli bernilai %1 ke atas</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Perlu diketahui</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Termasuk duti import</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Penghantaran dikira semasa pembayaran</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Kami akan e-mel anda apabila ada semula</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Beritahu saya apabila ada semula</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ditambah</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Tambah ke troli</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Tekan untuk batalkan</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Membuka pembayaran…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Beli sekarang</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Panggilan dengan %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Buka dalam tetingkap</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Tamatkan</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Tamatkan panggilan</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Tunjukkan panggilan</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Hubungi %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Hubungi lagi</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofon dihidupkan</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofon diredam</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Menghubungi…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Berfikir</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Bercakap</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Diredam</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Mendengar</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Panggilan tamat</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Nyahredam</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Redam</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Kod diskaun</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Guna</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Troli anda tidak dapat dimuatkan</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Item anda selamat. Semak sambungan anda dan cuba lagi.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Troli anda kosong</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Item yang anda tambah akan muncul di sini.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Terus membeli-belah</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1 telah dikeluarkan.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Troli anda yang terdahulu sudah luput. Ada %Ln item di dalamnya.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Masukkan semula</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Kuantiti %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Buang dari troli</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Tutup mesej</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Troli</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Troli</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Tunjukkan di sisi</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Subjumlah</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Diskaun</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Jumlah</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Termasuk duti import · Penghantaran dikira semasa pembayaran</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Pembayaran</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Selesaikan bayaran dalam tetingkap pembayaran. Troli anda kekal seperti sedia ada.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Tidak tersedia</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Koleksi</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln baharu dalam 30 hari lepas</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Koleksi ini tidak tersedia</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Mungkin namanya ditukar atau tidak dijual di %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Tiada item sepadan dengan penapis ini</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Buang penapis untuk melihat lagi.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Lengkapkan gaya</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Item untuk dipadankan</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Turut diminati</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Oleh mereka yang melihat item ini</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Anda mungkin juga suka</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Tambah item untuk dibandingkan</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Tambah item</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Daripada senarai hajat dan yang anda lihat</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Simpan atau lihat item, dan tambahkannya di sini.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Bandingkan dengan %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Saiz</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Bahan</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Buang daripada perbandingan</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Tidak tersedia di negara anda.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>tidak dinyatakan</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Saiz %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Kembali ke yang pertama</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Apa yang orang lain pakai</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Lihat-lihat</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Mengikuti</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Berita daripada pereka anda</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Lihat yang baharu</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Almari</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Apa patut saya pakai hari ini?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Buka almari</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Pesanan dan makluman anda</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Keahlian anda</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Lihat keistimewaannya</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Di mana bungkusan saya?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Pesanan %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Lihat pesanan</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Harga turun</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Item anda kini lebih murah</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Simpan yang anda suka</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln item disimpan</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Lihat senarai hajat</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Padam akaun anda?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Profil, makluman, keahlian dan senarai pesanan anda dipadam selama-lamanya. Pesanan dalam penghantaran tetap sampai. Ini tidak boleh dibuat asal.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Taip alamat e-mel anda untuk mengesahkan</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Padam akaun</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Koleksi</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Penapis</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Kosongkan semua penapis</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Cari dalam %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Tiada dengan nama itu</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Tunjukkan kurang</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Tunjukkan semua %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Dari</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Hingga</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Tunjukkan item</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Tunjukkan %Ln item</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Tutup penapis</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln dipilih, %L1 boleh dibandingkan</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln dipilih</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Pilih dua hingga empat item</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Pilih</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Terbaharu dahulu</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Harga: rendah ke tinggi</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Harga: tinggi ke rendah</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Anda sudah melihat kesemua %Ln item</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Koleksi: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Buka %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Pilih saiz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Saiz</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Disyorkan untuk anda: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Dalam troli anda</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Ganti</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Ketepikan</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 daripada %Ln item</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Menggantikan %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Buat masa ini tiada yang serupa.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Pilihan Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Gaya anda</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Pilih saiz, ganti yang kurang anda suka, ketepikan yang anda sudah ada.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>inci</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Ukuran badan anda</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira mencari saiz anda daripada ukuran ini. Ia masuk ke dalam perbualan anda, dan satu salinan kekal pada komputer ini sehingga anda log keluar.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrik</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Tinggi (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>kaki</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Berat (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>paun</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>Dada (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Pinggang (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Pinggul (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Biarkan kosong jika anda tidak tahu.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Potongan pilihan</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Hantar kepada Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Padam daripada komputer ini</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Bina gaya dengan item ini</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Pilih saiz dan tambah ke troli</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Tulis kepada %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Gaya dengan %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Item saya · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Gayakan dengan item saya</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Cuaca</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Lagi</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Lihat gaya: %Ln item, semuanya dalam saiz anda</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Topik baharu</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Topik…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Segar semula</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Gayakan dengan item saya…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Ukuran badan saya…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Cuaca…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Tunjukkan di sebelah halaman</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Cadangan</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Hantar: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Perbualan dengan %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Namakan semula</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Padam</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Nama topik</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Padam “%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Topik</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Anda</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Masukkan ukuran badan saya</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 menggunakan ini dahulu, dan menambah yang baharu hanya jika ada yang kurang.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Belum ada apa-apa untuk digayakan</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Item dalam troli dan senarai hajat anda muncul di sini.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln dipilih, sudah maksimum</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Dalam troli anda</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Dalam senarai hajat anda</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Anda di mana? Gaya akan disesuaikan dengan cuaca hari ini.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Gayakan saya ikut cuaca</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Bandar</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Tetapkan</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Guna lokasi saya</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Anda bergaya untuk acara apa?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Beritahu %1 acaranya, item yang anda suka atau bajet anda, dan dia akan memadankannya.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Log masuk untuk melihat berita pesanan dan makluman anda.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Tunjukkan</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Khidmat pelanggan</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Pemberitahuan</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Log masuk untuk melihat pemberitahuan anda</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Tiada yang baharu</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Pesanan dalam penghantaran, item yang ada semula dan harga turun diberitahu di sini.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Berita pesanan anda dan item yang anda ikuti ada di sini.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Belum dibaca</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Tandakan semua sudah dibaca</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Tetapan pemberitahuan</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Dijangka %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Pesanan</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Dipesan pada %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Bungkusan</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Pemulangan &amp; bayaran balik</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Pesanan ini tiada di sini</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Pesanan baharu anda muncul di sini dalam beberapa minit.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Mungkin milik akaun lain.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Log masuk untuk melihat pesanan ini</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Bungkusan boleh dijejak dengan nombornya tanpa akaun.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Kuantiti %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Disembunyikan</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Tunjukkan semula pesanan</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Sembunyikan pesanan</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Pesanan yang mana</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Dalam perjalanan</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Telah sampai</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Semua pesanan anda disembunyikan</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Tiada yang dalam perjalanan</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Belum ada yang sampai</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Tiada pemulangan</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Sebahagiannya disembunyikan.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Tunjukkan pesanan tersembunyi</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Semua pesanan</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Pesanan anda akan muncul di halaman ini</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Belum ada pesanan</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Apa yang anda pesan muncul di sini, bersama kedudukannya dalam perjalanan kepada anda.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Log masuk untuk melihat pesanan anda</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Di mana kedudukannya, apa isinya, dan cara memulangkan barang.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Disembunyikan daripada pesanan anda pada komputer ini.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Langkah %L1 daripada %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Ringkasan</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Alamat penghantaran</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Mulakan pemulangan</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Bungkusan %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Nombor ini belum dikenali</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Bungkusan baharu mungkin mengambil masa sehari untuk dikenali oleh syarikat penghantar.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Buka halaman syarikat penghantar</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Syarikat penghantar belum memberi sebarang berita.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Perjalanan bungkusan</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Tidak tersedia buat sementara</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Ciri ini dijeda buat masa ini. Sila cuba lagi nanti.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Buang daripada senarai</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Item ini tidak tersedia</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Mungkin sudah habis dijual selama-lamanya, atau tidak dijual di %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Kami akan e-mel anda apabila harganya turun</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Beritahu saya jika harga turun</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln item lebih murah daripada semasa anda melihatnya</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Belum ada yang dipantau</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Tiada harga turun buat masa ini</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Simpan atau lihat item, dan anda nampak di sini apabila harganya turun.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Harga item yang anda simpan dan lihat masih sama, atau dilihat dalam mata wang lain.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Jualan akhir</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Gambar</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Gambar %L1 daripada %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, gambar %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Lihat semua</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Tidak berminat</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Selepas %Ln hari: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Jawapan kedai: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Ulasan</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Ulasan lagi</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Penerangan</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Keistimewaan</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Butiran</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Soal jawab</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Hari lahir</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Pilih tarikh</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mel</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Alamat yang anda guna untuk log masuk</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Negara</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Buang perubahan</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Disimpan</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Bersama kami sejak %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Surat berita</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Melalui e-mel</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Item baharu dan tawaran, ke %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Melalui SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Memerlukan nombor telefon anda di atas</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Log masuk untuk melihat profil anda</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Nama anda, nombor telefon anda dan apa yang boleh kami hantar.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Terokai</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Lihat-lihat dahulu, dan padanannya menanti anda di sini.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Baru dilihat</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Kosongkan semua</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Belum ada jejak</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Item yang anda lihat terkumpul di sini supaya mudah dicari semula.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Log masuk, dan kami akan e-mel anda apabila ada semula.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>E-mel dihantar ke %1. Tekan lagi jika anda tidak mahu lagi.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>E-mel dihantar ke %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Besarkan gambar %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln hasil untuk “%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Apa yang anda cari?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Tiada hasil untuk “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Semak ejaan, cuba perkataan yang lebih umum, atau lihat Baharu tiba.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Tiada yang sepadan dengan penapis ini</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Buang satu dua penapis untuk melihat lagi “%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Log keluar?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Troli dan senarai hajat anda kekal pada komputer ini. Pesanan dan keahlian tersedia semula selepas anda log masuk.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Jadual saiz</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Unit saiz</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Isih: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Alat</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Tiada alat buat masa ini.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Nombor bungkusan atau pesanan</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Ada dalam e-mel yang memberitahu anda tentang penghantaran.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Kami tidak mengenali nombor ini. Semak, atau cuba lagi esok: bungkusan baharu mungkin mengambil masa sehari untuk dikenali.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Jejak</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Halaman ini tidak tersedia</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Mungkin sudah dipindahkan, atau datang dengan versi lain.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Tekan hati pada item dan ia menanti anda di sini. Kami pantau harganya juga.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Akaun anda: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Mencari akaun anda…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Tiada sesiapa log masuk</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Pesanan, makluman dan keahlian memerlukan akaun. Melihat dan membeli tidak.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Penampilan</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Warna</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Ikut desktop</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Mengikut cerah atau gelap desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Cerah</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Gelap</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Bingkai tetingkap desktop</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Bar tajuk di atas tab, seperti tetingkap lain</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fail</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Lihat</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Pergi</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Bantuan</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Apa yang dikatakan</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Katakan apa yang anda cari, atau untuk acara apa.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Batalkan panggilan</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Sembang</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Teruskan dalam sembang supaya boleh menulis juga</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Panggilan dengan %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Tempoh panggilan: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Tunjukkan dalam sembang</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Kecilkan</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Tutup dan teruskan dalam sembang</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Tamatkan panggilan dan tutup</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Gambar sahaja</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Besarkan</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Tunjukkan panggilan dengan %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Panggilan dengan %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Kembangkan ke halaman penuh</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Jejak pada bila-bila masa di Pesanan.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Muat semula halaman ini</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Pembayaran selamat di Shopify  ·  Troli anda kekal seperti sedia ada</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Ada pautan di halaman ini yang keluar daripada pembayaran, ke %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Buka dalam pelayar</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Pembayaran tidak dapat ditunjukkan di sini</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Teruskan dalam pelayar</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET belum dikonfigurasikan</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Jalankan scripts/sync-secrets.sh dalam folder projek, kemudian bina semula.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Jejak</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Umum</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Negara dan mata wang</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Bahasa kedai</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Buka item di sebelah senarai</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Dalam tetingkap lebar, item ditunjukkan di sebelah tempat ia ditemui</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Unit ukuran</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Sentimeter dan kilogram</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Inci dan paun</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Halaman tanpa tajuk</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Jeda tayangan slaid</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Mainkan tayangan slaid</translation>
    </message>
    <message>
        <source>Space</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Space</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zum keluar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zum masuk</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Gambar ini tidak dapat dimuatkan</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Negara dan bahasa: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Negara dan bahasa</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Bahasa</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Cari bahasa</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Cari negara dan mata wang</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Bahasa</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Negara</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Tiada bahasa sepadan dengan “%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Tiada negara sepadan dengan “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Dalam tetingkap</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Sepanduk di bahagian atas, selama beberapa saat.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Pada desktop</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Di tempat desktop menunjukkan pemberitahuan aplikasi, walaupun tiada tetingkap terbuka.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Dengan bunyi</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Bilangan pada ikon aplikasi</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Berapa banyak yang belum anda baca.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Tunjukkan contoh</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Tentang apa</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Tidak akan disyorkan lagi pada komputer ini.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panel sisi</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Buka dalam tab baharu</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Tutup panel sisi</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Lebar panel sisi</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Bantu kedai memilih apa yang ditunjukkan</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Memberitahu kedai halaman mana dibuka, item mana dilihat, dimasukkan ke troli dan dibeli, serta bila aplikasi tertutup tanpa diduga, tanpa nama anda. Jika dimatikan, hanya data yang perlu sahaja dihantar.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Hidup atau mati</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Yang perlu ialah apa yang anda minta</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Halaman yang anda buka, carian, troli dan pesanan anda perlu sampai kepada kedai.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Yang anda simpan kekal pada komputer ini</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Senarai hajat anda, apa yang anda lihat dan cari, sehingga anda mengosongkannya.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Data log masuk anda dalam gelang kunci</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Jika tiada gelang kunci, dalam fail yang hanya anda boleh baca. Ia tamat selepas 60 hari, dan setiap kali anda log keluar.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Tangkapan skrin disimpan</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Tangkapan skrin tidak dapat disimpan</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Pastikan ada ruang dalam folder Gambar anda.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Tunjukkan folder</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Cari, atau tampal pautan</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Cari dengan imej…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Bunyi</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Kemas kini</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Tetapan</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Bahagian</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Teruskan dengan %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Sedang log masuk…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 dibuka dalam pelayar anda. Log masuk di sana, dan anda turut log masuk di sini.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Disalin</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Salin alamat</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Jika pelayar tidak terbuka sendiri</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Tiada apa-apa berlaku di sini?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Tampal pautan terakhir pelayar anda</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Ia bermula dengan “wrenfieldstore://”. Sesetengah pelayar menunjukkannya pada bar alamat.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Selesaikan log masuk</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Buka akaun anda</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Log masuk ke akaun anda</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Cara log masuk</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Kod e-mel</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kata laluan</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Kami telah menghantar kod ke %1. Ia mungkin mengambil masa seminit untuk tiba.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Kami hantar kod melalui e-mel dahulu, untuk memastikan alamat itu milik anda.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Kami hantar kod melalui e-mel untuk log masuk. Anda tidak perlukan kata laluan.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Kod pengesahan</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Hantar lagi dalam %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Hantar lagi</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Hantar kod lagi</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Kata laluan (6 aksara atau lebih)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nama (pilihan)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Lupa kata laluan? Log masuk dengan kod e-mel</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>E-mel kod kepada saya</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>atau teruskan dengan</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Berhenti</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Cuba</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Berhenti mendengar mikrofon</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Cuba mikrofon</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Kekuatan suara</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Sedang digunakan untuk panggilan.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Katakan sesuatu: bar mengikut suara anda. Tiada apa-apa keluar dari komputer ini.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Menunjukkan sekuat mana suara anda. Tiada apa-apa keluar dari komputer ini.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Pembesar suara</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 meredam mikrofon dari mana-mana sahaja, sepanjang panggilan.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M meredam mikrofon dalam tetingkap panggilan.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Pautan</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Cari “%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Terkini</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Dilihat dan disimpan</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Tiada item terlintas. Enter mencari kesemuanya.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>untuk pilih</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>untuk tutup</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Buang “%1” daripada carian terkini</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Gambar: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Dibuka dalam pelayar</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Tulis mesej</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Lampirkan gambar atau PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Gambar dan PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Lepaskan gambar atau PDF di sini</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Boleh kami bantu?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Tanya tentang pesanan, pemulangan atau saiz anda. Gambar turut membantu.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Di mana pesanan saya?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Saya ingin memulangkan barang</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Saiz mana patut saya ambil?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Memuatkan</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Tutup %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Tab baharu di kanan</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Nyahsemat tab</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Semat tab</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Pindahkan tab ke tetingkap baharu</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Buka semula tab yang ditutup</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Tutup tab</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Tutup tab lain</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Kembangkan bar sisi</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Kuncupkan bar sisi</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Tab baharu</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Maju</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Dibuang daripada: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Kemas kini</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Kali terakhir disemak: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Belum disemak</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Salinan LOOMSTREET ini tidak dapat mengemas kini sendiri.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET mencari versi baharu sendiri.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Buat masa ini LOOMSTREET tidak mencari versi baharu sendiri.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Versi baharu datang dari tempat anda memperolehnya. Anda masih boleh menyemak di sini.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Semasa ia dibuka dan setiap enam jam. Versi yang ditemui dimuat turun di latar belakang dan dipasang apabila anda keluar; jika tidak boleh, anda diberitahu.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Kedai telah menjedanya. Anda masih boleh menyemak di sini.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Semak kemas kini…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versi %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Apa yang baharu</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Langkau versi ini</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimumkan</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Pulihkan</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maksimumkan</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Tutup tetingkap</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Sambungan selamat ke %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Sambungan tidak selamat</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Akaun anda telah dipadam.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Anda telah dilog keluar sebelum akaun anda dapat dipadam. Log masuk lagi untuk memadamnya.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Penghantaran</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Percuma</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Cukai</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln bungkusan</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Disahkan</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Dibungkus</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Dibatalkan</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Sedang diproses</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Menunggu syarikat penghantar</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Sedang dihantar</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Masalah penghantaran</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Pemulangan diminta</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Pemulangan diluluskan</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Bayaran dipulangkan</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Pemulangan ditolak</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 dan %Ln lagi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Gunakan paling banyak %Ln aksara.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Masukkan nombor telefon, seperti %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Masukkan tarikh, seperti %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Masukkan tarikh yang sudah berlalu.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Ada maklumat yang tidak diterima. Semak dan cuba lagi.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Masukkan alamat e-mel yang sah.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Kod itu salah atau sudah luput. Minta kod baharu.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Terlalu banyak percubaan. Tunggu seminit dan cuba lagi.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>E-mel dan kata laluan itu tidak sepadan. Cuba lagi atau log masuk dengan kod e-mel.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Cara log masuk ini belum tersedia.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Akaun itu tiada alamat e-mel yang boleh kami guna. Cuba cara lain.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Log masuk dibatalkan.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Log masuk gagal. Cuba lagi.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Masukkan enam digit kod itu.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Pilih kata laluan dengan 6 aksara atau lebih.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Masukkan kata laluan anda. Ia mempunyai 6 aksara atau lebih.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Itu bukan pautan terakhir log masuk anda. Pautan itu bermula dengan “wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Pusat Bantuan LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Perjanjian</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Tetingkap baharu</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Semat atau nyahsemat tab</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Alihkan tab ke belakang</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Alihkan tab ke hadapan</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Buka produk panel sisi dalam halaman penuh</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Buka produk panel sisi dalam tab baharu</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Ambil tangkapan skrin</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Skrin penuh</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Ke halaman utama bahagian</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Tab seterusnya</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Tab sebelumnya</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Pilihan utama</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Terbaharu</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Harga: rendah ke tinggi</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Harga: tinggi ke rendah</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Paling laris</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hari ini</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Semalam</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Wanita</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Lelaki</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Mewah</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Beg</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Aksesori</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Dari %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Hingga %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Jualan akhir</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Baharu</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Tinggal satu sahaja</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Tinggal %Ln sahaja</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Paling sepadan</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Item ini tidak boleh dipulangkan</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Semak saiz dan warna sebelum memesan</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Dibuat untuk anda</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Boleh dipulangkan hanya jika tiba dalam keadaan rosak</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Dibuat mengikut tempahan, jadi perlukan lebih masa</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Dalam 30 hari, belum dipakai, lengkap dengan semua isinya</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Simpan kotak, beg kain dan dokumen</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Dalam 30 hari, tapak tanpa kesan, dalam kotaknya</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Cuba di dalam rumah dahulu</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Dalam 30 hari, belum dipakai, tag masih ada</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Pilih %1 dahulu.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln item dalam troli anda</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Kod itu tidak dapat digunakan. Cuba lagi.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1” tidak sah untuk item dalam troli anda.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Anda layak untuk penghantaran PERCUMA ke seluruh dunia</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Tambah %1 lagi untuk penghantaran PERCUMA ke seluruh dunia</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Pesanan dibuat. Ia akan muncul di Pesanan dalam beberapa minit.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Pesanan %1 dibuat. Ia akan muncul di Pesanan dalam beberapa minit.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln item  ·  pengesahan dihantar ke e-mel anda</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Halaman ini mengambil masa terlalu lama untuk dimuatkan.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Halaman ini keluar daripada pembayaran.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Halaman ini berhenti berfungsi.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Pembayaran tidak dapat dimulakan. Cuba lagi.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Kini kurang %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>kerja</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>janji temu</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>parti</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>majlis kahwin</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>percutian</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>kembara</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>setiap hari</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>hujung minggu</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>sekolah</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>temu duga</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>konvokesyen</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>festival</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>ke pantai</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>keluar malam</translation>
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
        <translation>ke gim</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>majlis formal</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Baharu tiba</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Ikut cita rasa anda</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Baharu minggu ini</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Baharu minggu ini</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Dipilih khas</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Baharu minggu ini · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Ikut cita rasa anda</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Disukai pembeli seperti anda</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Ikut apa yang anda lihat</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Sohor kini</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Sepadan dengan carian anda: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Kerana anda suka stail %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Untuk %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Pilihan stail %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>manis</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>vintaj</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>elegan</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalis</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantik</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>jalanan</translation>
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
        <translation>Perancis</translation>
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
        <translation>kasual</translation>
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
        <translation>Korea</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>Jepun</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>Cina moden</translation>
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
        <translation>seksi</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>comel</translation>
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
        <translation>feminin</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgini</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>formal</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>glamor</translation>
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
        <translation>utiliti</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>koboi</translation>
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
        <translation>Laman utama</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Jualan murah</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Peti masuk</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Terlalu banyak percubaan. Tunggu sebentar dan cuba lagi.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Sesi anda telah tamat. Log masuk lagi.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Masukkan alamat e-mel anda.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Ada butiran yang nampak tidak betul. Semak dan cuba lagi.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET sedang menghadapi masalah. Cuba lagi sebentar nanti.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Itu tidak berjaya. Cuba lagi.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Jawapan yang diterima tidak dijangka. Cuba lagi.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET tidak dapat dihubungi. Cuba lagi.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Konfigurasi aplikasi tiada.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Permintaan mengambil masa terlalu lama. Cuba lagi.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln pemberitahuan lagi menanti dalam peti masuk anda.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Amaran sistem</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Berita akaun dan perkhidmatan</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Berita pesanan</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Pesanan disahkan, dikirim dan sampai</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Bayaran balik dan pemulangan</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Bayaran balik dibuat dan berita pemulangan</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Jawapan khidmat pelanggan</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Apabila khidmat pelanggan menjawab anda</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Item yang anda tanya ada semula</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Item yang disimpan atau dilihat jadi lebih murah</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktiviti Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Suka, komen, pengikut baharu dan mesej</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Perubahan peringkat, mata dan kupon baharu</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Promosi dan acara</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Jualan murah, keluaran baharu dan acara kedai</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Menghantar lampiran</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Pesanan dibuat</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Pesanan anda disahkan. Ia akan muncul di Pesanan dalam beberapa minit.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Pesanan %1 disahkan. Ia akan muncul di Pesanan dalam beberapa minit.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET tidak dapat mengemas kini sendiri</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Klik Kemas kini di bahagian atas tetingkap untuk memasang versi baharu daripada imej cakera.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Pratonton pemberitahuan</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Berita pesanan dan jawapan khidmat pelanggan yang baharu akan muncul di sini.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Almari</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Semua milik anda di satu tempat</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Studio padanan</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Padankan item dan lihat sebagai satu</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>Buku gaya</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>Padanan yang anda simpan</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Idea padanan</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Cara baharu memakai isi almari anda</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Cadangan saiz</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Ukuran badan anda, dan saiz yang padan</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Cari dengan imej</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Cari item melalui gambarnya</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Bandingkan</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Sehingga empat item bersebelahan</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Menyemak kemas kini…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Sudah versi terkini</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Memuat turun LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Menyemak muat turun…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Memasang LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Kemas kini tidak dapat disemak</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Kemas kini tidak dapat dimuat turun</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Sedia untuk dipasang</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Pasang kemas kini</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 sedia untuk dipasang</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 ialah versi terbaharu.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET akan ditutup, dan versi baharu mengambil tempatnya.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Telah dimuat turun. Buka semula untuk selesai, atau ia dipasang apabila anda keluar kali seterusnya.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Dalam tetingkap yang baru dibuka, seret LOOMSTREET ke Aplikasi dan pilih Ganti. Kemudian buka LOOMSTREET semula.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET tidak dapat menggantikan dirinya pada komputer ini. Pasang versi baharu daripada imej cakera. Ia mengambil masa beberapa saat sahaja.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Versi anda tidak lagi disokong.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Kemas kini telah dimuat turun. Buka semula LOOMSTREET untuk selesai, atau ia dipasang apabila anda keluar kali seterusnya.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Kemas kini tidak dapat disemak. Semak sambungan anda dan cuba lagi.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Muat turun gagal (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Muat turun tidak lengkap atau berubah dalam perjalanan. Cuba lagi.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Fail yang dimuat turun tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Muat turun tidak ditandatangani oleh LOOMSTREET, jadi ia tidak dibuka.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Muat turun dan pasang</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Buka semula untuk kemas kini</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Buka imej cakera</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Nampaknya anda di luar talian.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira mengambil masa terlalu lama untuk menjawab.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Anda menghantar mesej terlalu laju. Tunggu sebentar dahulu.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Mesej dengan isi begini tidak dapat dihantar.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET sedang menghadapi masalah.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET tidak dapat dihubungi.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Pilih saiz untuk %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Sudah habis dijual dan tidak ditambah: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Pembayaran tidak dapat dimulakan. Semak sambungan anda dan cuba lagi.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Tinggi atau berat itu nampak tidak betul. Semak nombor dan unitnya.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Satu daripada ukuran ini nampak tidak betul. Semak nombornya, atau biarkan kosong.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Longgar</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Ikut badan</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Biasa</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Bantu saya gayakan ini: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Mesej ini belum disahkan. Anda boleh cuba lagi.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Perbualan sudah terkini</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira sedang menjawab</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira sedang menjawab. Anda boleh menghantar ini sebentar lagi.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Topik disimpan pada komputer ini. Mira terus mengingati perbualan anda bersamanya.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Bantu saya cari sesuatu</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Gayakan saya dengan isi almari saya</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Apa nak dipakai malam ini</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET tidak dibenarkan melihat lokasi anda. Taip bandar anda.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Lokasi anda tidak ditemui. Taip bandar anda.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Bandar itu tidak dikenali. Cuba bandar lebih besar yang berdekatan.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira tidak dapat menjawab sekarang. Cuba lagi sebentar nanti.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira dalam panggilan lain. Cuba lagi dalam seminit.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Talian tersekat sekejap. Boleh ulang?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Talian terputus. Hubungi lagi untuk terus berbual.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Akses mikrofon dimatikan. Hidupkan di Tetapan Sistem › Privasi &amp; Keselamatan › Mikrofon, kemudian hubungi lagi.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Mikrofon tidak dapat dimulakan. Pastikan ia disambungkan, kemudian hubungi lagi.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Redam mikrofon semasa panggilan</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Ditambah ke troli anda</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>%1 ditambah ke troli anda</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Tidak dapat ditambah. Cuba dari halaman produk.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Membawa anda ke sana…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Membuka %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Lalai sistem</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Tidak disambungkan</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Pakaian luar</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Baju</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Seluar dan skirt</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Gaun</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Kasut</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Pelengkap</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Nyaman</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Cerah</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Separa mendung</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Mendung</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Berkabus</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Renyai</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Hujan</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Bersalji</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Hujan sekejap-sekejap</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Ribut petir</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Fail ini sudah tiada.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Fail ini tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Fail ini kosong.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Fail ini lebih besar daripada 10 MB. Pilih yang lebih kecil.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Hanya gambar dan fail PDF boleh dihantar.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Mesej ini mungkin belum sampai.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Disembunyikan</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Dalam perjalanan</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Telah sampai</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Tulis kepada Khidmat Pelanggan</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Perbualan dengan Khidmat Pelanggan</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
