<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Kamu di sini</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Buka halaman penuh</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Mengirim…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Ciutkan</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tampilkan semua</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter untuk mengirim, Shift+Enter untuk baris baru</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Kirim</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Coba lagi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Hapus %1</translation>
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
        <translation>Berikutnya</translation>
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
        <translation>Ke yang terbaru</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln pesan baru</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Sepertinya kamu sedang offline. Periksa koneksimu lalu coba lagi.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Sembunyikan kata sandi</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Tampilkan kata sandi</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, sebelumnya %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Habis</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Sibuk</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Hapus dari wishlist</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Simpan ke wishlist</translation>
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
        <translation>Berikutnya</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, habis</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, disarankan untukmu</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Nilai %L1 dari 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Nilai %L1 dari 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Kurangi</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Tambah</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Urungkan</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Akunmu</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Lemarimu, selalu diingat</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Semua di sini bisa dilihat dan dibeli tanpa akun. Dengan akun, toko tahu di mana paketmu dan apa yang sedang kamu tunggu.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Masuk</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Buat akun</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Semua pesanan di satu tempat</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Posisi setiap paket, dan pengembalian tanpa mencari struk</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Kabar di saat penting</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Ukuranmu tersedia lagi, atau harganya turun</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Keanggotaan dan kupon</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Poin, tingkat, dan keuntungannya</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Checkout yang mengenalmu</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Alamatmu sudah ada di sana</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Layanan Pelanggan</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Pesanan, pengembalian, dan ukuran</translation>
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
        <translation>Sedang dikirim dan pernah dibeli</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Lacak paket</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Dengan nomor paket atau nomor pesanan</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Pengembalian</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Kembalikan barang</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Untukmu</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Wishlist</translation>
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
        <translation>Pengingat</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Tersedia lagi dan harga turun</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Keanggotaan</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Tingkat dan poinmu</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Kupon</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Bisa dipakai saat checkout</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Akun</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Tanpa akun</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Nama, tanggal lahir, dan newsletter</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privasi</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Yang diketahui toko tentangmu</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Disimpan di komputer ini</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Hapus akun…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Keyring tidak merespons</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Keyring menjaga data masukmu tetap aman, dan tanpanya tidak ada yang bisa masuk. Buka kuncinya lalu coba lagi.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Tersedia lagi</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Harga turun</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Sudah tersedia lagi</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Sekarang lebih murah</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 saat kamu minta diingatkan</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Hentikan pengingat ini</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln pengingat</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Kami kirim email ke %1 saat item tersedia lagi atau harganya turun.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Belum ada pengingat</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Untuk item yang ukuranmu habis, tekan “Kabari aku kalau tersedia lagi”. Untuk item lain, “Kabari aku kalau harga turun”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Baru masuk</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Masuk untuk melihat pengingatmu</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Kami kabari kamu saat item tersedia lagi dalam ukuranmu atau harganya turun.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Kami tidak akan mengirim email soal ini.</numerusform>
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
        <translation>Desainer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln desainer</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Cari desainer</translation>
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
        <translation>Desainer lain</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Desainer berawalan %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Tidak ada desainer yang cocok dengan “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Periksa ejaannya, atau lihat semuanya.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Tampilkan semua desainer</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Belum ada apa-apa di sini</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Item baru hadir setiap minggu.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Jelajahi</translation>
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
        <translation>Pre-order</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Paling banyak dipilih: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Bantu aku padukan ini</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Bandingkan</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Dengan item yang kamu simpan atau lihat</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>GRATIS ongkir ke seluruh dunia</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Untuk belanja mulai %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Perlu diketahui</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Termasuk bea masuk</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Ongkir dihitung saat checkout</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Kami kirim email kalau tersedia lagi</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Kabari aku kalau tersedia lagi</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ditambahkan</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Masukkan ke keranjang</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Tekan untuk membatalkan</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Membuka checkout…</translation>
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
        <translation>Buka di jendela</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Akhiri</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Akhiri panggilan</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Tampilkan panggilan</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Telepon %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Telepon lagi</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Mikrofon aktif</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Mikrofon dibisukan</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Memanggil…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Berpikir</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Berbicara</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Dibisukan</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Mendengarkan</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Panggilan berakhir</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Bunyikan</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Bisukan</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Kode diskon</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Pakai</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Keranjangmu tidak bisa dimuat</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Itemmu aman. Periksa koneksimu lalu coba lagi.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Keranjangmu kosong</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Item yang kamu tambahkan muncul di sini.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Lanjut belanja</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1 dikeluarkan.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Keranjangmu yang lama sudah kedaluwarsa. Isinya %Ln item.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Masukkan lagi</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Jumlah %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Hapus dari keranjang</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Tutup pesan</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Keranjang</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Keranjang</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Tampilkan di samping</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Subtotal</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Diskon</translation>
    </message>
    <message>
        <source>Total</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Total</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Termasuk bea masuk · Ongkir dihitung saat checkout</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Checkout</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Selesaikan pembayaran di jendela checkout. Isi keranjangmu tidak berubah.</translation>
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
            <numerusform>%Ln item baru dalam 30 hari terakhir</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Koleksi ini tidak tersedia</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Mungkin namanya diganti atau tidak dijual di %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Tidak ada item yang cocok dengan filter ini</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Hapus filter untuk melihat lebih banyak.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Lengkapi look-nya</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Item untuk dipadukan</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Juga banyak disukai</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Oleh mereka yang melihat item ini</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Mungkin kamu juga suka</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Tambahkan item untuk dibandingkan</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Tambahkan item</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Dari wishlist dan yang pernah kamu lihat</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Simpan atau lihat item, lalu tambahkan di sini.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Bandingkan dengan %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Bahan</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Hapus dari perbandingan</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Tidak tersedia di negaramu.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>tidak disebutkan</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Ukuran %1</translation>
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
        <translation>Gaya orang lain</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Lihat-lihat</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Diikuti</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Kabar dari desainermu</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Lihat yang baru</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Lemari</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Hari ini pakai apa, ya?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Buka lemari</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Pesanan dan pengingatmu</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Keanggotaanmu</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Lihat keuntungannya</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Di mana paketku?</translation>
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
        <translation>Itemmu sekarang lebih murah</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Simpan yang kamu suka</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln item disimpan</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Lihat wishlist</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Hapus akunmu?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Profil, pengingat, keanggotaan, dan daftar pesananmu dihapus selamanya. Pesanan yang sedang dikirim tetap sampai. Ini tidak bisa dibatalkan.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Ketik alamat emailmu untuk konfirmasi</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Hapus akun</translation>
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
        <translation>Filter</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Hapus semua filter</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Cari di %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Tidak ada dengan nama itu</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Lebih sedikit</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Tampilkan semua %Ln</numerusform>
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
        <translation>Tampilkan item</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Tampilkan %Ln item</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Tutup filter</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln dipilih, %L1 bisa dibandingkan</numerusform>
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
        <translation>Pilih dua sampai empat item</translation>
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
        <translation>Terbaru dulu</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Harga: termurah dulu</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Harga: termahal dulu</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Kamu sudah melihat semua %Ln item</numerusform>
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
        <translation>Pilih ukuran</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Disarankan untukmu: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Di keranjangmu</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Ganti</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Lewati</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 dari %Ln item</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Sebagai ganti %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Saat ini tidak ada yang mirip.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Pilihan Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Look-mu</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Pilih ukuran, ganti yang kurang kamu suka, lewati yang sudah kamu punya.</translation>
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
        <translation>Ukuran tubuhmu</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Dari sini Mira menghitung ukuranmu. Data ini masuk ke percakapanmu, dan salinannya ada di komputer ini sampai kamu keluar.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Satuan</translation>
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
        <translation>pon</translation>
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
        <translation>Kosongkan kalau kamu tidak tahu.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Potongan favorit</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Kirim ke Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Hapus dari komputer ini</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Buat look dari item ini</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Pilih ukuran dan masukkan ke keranjang</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Tulis ke %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look dengan %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Itemku · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Padukan dengan itemku</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Cuaca</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Lainnya</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Lihat look: %Ln item, semua dalam ukuranmu</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Topik baru</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Topik…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Segarkan</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Padukan dengan itemku…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Ukuran tubuhku…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Cuaca…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Tampilkan di samping halaman</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Saran</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Kirim: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Percakapan dengan %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Ganti nama</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Nama topik</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Hapus “%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Simpan saja</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Topik</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Kamu</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Isi ukuran tubuhku</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 memakai ini dulu, dan hanya menambah yang baru kalau ada yang kurang.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Belum ada yang bisa dipadukan</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Item di keranjang dan wishlist kamu muncul di sini.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln dipilih, sudah maksimal</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Di keranjangmu</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Di wishlist kamu</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Kamu di mana? Look-nya akan pas dengan cuaca hari ini.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Padukan sesuai cuaca</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Kota</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Terapkan</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Pakai lokasiku</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Mau tampil untuk acara apa?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Ceritakan ke %1 acaranya, item yang kamu suka, atau anggaranmu, lalu dia yang memadukannya.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Masuk untuk melihat kabar pesanan dan pengingatmu.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Tampilkan</translation>
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
        <translation>Layanan pelanggan</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifikasi</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Masuk untuk melihat notifikasimu</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Tidak ada yang baru</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Pesanan yang sedang dikirim, item yang tersedia lagi, dan harga turun dikabarkan di sini.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Kabar tentang pesananmu dan item yang kamu ikuti ada di sini.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Belum dibaca</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Tandai semua sudah dibaca</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Pengaturan notifikasi</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Perkiraan tiba %1</translation>
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
            <numerusform>Paket</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Pengembalian barang &amp; dana</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Pesanan ini tidak ada di sini</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Pesanan barumu muncul di sini dalam beberapa menit.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Mungkin milik akun lain.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Masuk untuk melihat pesanan ini</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Paket bisa dilacak dengan nomornya tanpa akun.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Jumlah %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Disembunyikan</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Tampilkan lagi pesanan</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Sembunyikan pesanan</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Pesanan mana</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Dalam perjalanan</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Telah tiba</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Semua pesananmu disembunyikan</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Tidak ada yang dalam perjalanan</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Belum ada yang tiba</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Tidak ada pengembalian</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Sebagian disembunyikan.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Tampilkan pesanan tersembunyi</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Semua pesanan</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Pesananmu segera muncul di halaman ini</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Belum ada pesanan</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Yang kamu pesan muncul di sini, lengkap dengan posisinya menuju kamu.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Masuk untuk melihat pesananmu</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Di mana posisinya, apa isinya, dan cara mengembalikannya.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Disembunyikan dari pesananmu di komputer ini.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Langkah %L1 dari %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Ringkasan</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Alamat pengiriman</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Ajukan pengembalian</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Paket %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Nomor ini belum dikenal</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Paket baru bisa perlu sehari sampai dikenal oleh kurirnya.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Buka halaman kurir</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Kurir belum memberi kabar apa pun.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Perjalanan paket</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Sementara tidak tersedia</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Fitur ini sedang dijeda. Silakan coba lagi nanti.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Hapus dari daftar</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Item ini tidak tersedia</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Mungkin sudah habis untuk seterusnya, atau tidak dijual di %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Kami kirim email kalau harganya turun</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Kabari aku kalau harga turun</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln item lebih murah daripada saat kamu lihat</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Belum ada yang dipantau</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Saat ini tidak ada harga yang turun</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Simpan atau lihat item, dan di sini kamu tahu saat harganya turun.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Harga item yang kamu simpan dan lihat masih sama, atau dulu dilihat dalam mata uang lain.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Foto %L1 dari %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, foto %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Lihat semua</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Tidak tertarik</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Setelah %Ln hari: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Jawaban toko: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Ulasan</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Ulasan lainnya</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Deskripsi</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Keunggulan</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Tanya jawab</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telepon</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Tanggal lahir</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Pilih tanggal</translation>
    </message>
    <message>
        <source>Email</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Email</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Alamat yang kamu pakai untuk masuk</translation>
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
        <translation>Batalkan perubahan</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Tersimpan</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Bersama kami sejak %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Newsletter</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Lewat email</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Item baru dan penawaran, ke %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Lewat SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Perlu nomor teleponmu di atas</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Masuk untuk melihat profilmu</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Namamu, nomor teleponmu, dan apa yang boleh kami kirim.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Temukan</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Lihat-lihat dulu sebentar, nanti yang cocok dengan pilihanmu muncul di sini.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Terakhir dilihat</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Hapus semua</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Belum ada jejak</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Item yang kamu lihat terkumpul di sini supaya mudah ditemukan lagi.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Masuk, dan kami kirim email kalau sudah tersedia lagi.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Email dikirim ke %1. Tekan lagi kalau kamu sudah tidak mau.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Email dikirim ke %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Perbesar foto %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln hasil untuk “%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Kamu cari apa?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Tidak ada hasil untuk “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Periksa ejaannya, coba kata yang lebih umum, atau lihat Baru masuk.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Tidak ada yang cocok dengan filter ini</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Hapus satu dua filter untuk melihat lebih banyak “%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Keluar?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Keranjang dan wishlist kamu tetap ada di komputer ini. Pesanan dan keanggotaan tersedia lagi setelah kamu masuk kembali.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tabel ukuran</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Satuan ukuran</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Urutkan: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Alat</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Saat ini tidak ada alat.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Nomor paket atau pesanan</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Ada di email yang mengabarkan pengirimannya.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Nomor ini tidak kami kenal. Periksa lagi, atau coba besok: paket baru bisa perlu sehari sampai dikenal.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Lacak</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Halaman ini tidak tersedia</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Mungkin sudah pindah, atau hadir di versi lain.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Tekan hati pada sebuah item dan item itu menunggumu di sini. Harganya juga kami pantau.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Akunmu: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Mencari akunmu…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Belum ada yang masuk</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Pesanan, pengingat, dan keanggotaan perlu akun. Melihat-lihat dan membeli tidak.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Tampilan</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Warna</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Ikuti desktop</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Mengikuti terang dan gelapnya desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Terang</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Gelap</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Bingkai jendela dari desktop</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Bilah judul di atas tab, seperti pada jendela lain</translation>
    </message>
    <message>
        <source>File</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>File</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Tampilan</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Bantuan</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Isi pembicaraan</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Katakan apa yang kamu cari, atau untuk acara apa.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Batalkan panggilan</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Lanjut di chat supaya bisa menulis juga</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Panggilan dengan %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Durasi panggilan: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Tampilkan di chat</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Perkecil</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Tutup dan lanjut di chat</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Akhiri panggilan dan tutup</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Gambar saja</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Perbesar</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Tampilkan panggilan dengan %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Panggilan dengan %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Perluas ke halaman penuh</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Lacak kapan saja di Pesanan.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Muat ulang halaman ini</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Checkout aman di Shopify  ·  Isi keranjangmu tidak berubah</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Ada tautan di halaman ini yang keluar dari checkout, ke %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Buka di browser</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Checkout tidak bisa ditampilkan di sini</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Lanjutkan di browser</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET belum dikonfigurasi</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Jalankan scripts/sync-secrets.sh di folder proyek, lalu build lagi.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Keluar dari aplikasi</translation>
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
        <translation>Negara dan mata uang</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Bahasa toko</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Buka item di samping daftar</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Di jendela lebar, item tampil di sebelah tempat kamu menemukannya</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Satuan ukuran</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Sentimeter dan kilogram</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Inci dan pon</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Halaman tanpa judul</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Jeda slideshow</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Putar slideshow</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spasi</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Perkecil</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Perbesar</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Foto ini tidak bisa dimuat</translation>
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
        <translation>Cari negara dan mata uang</translation>
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
        <translation>Tidak ada bahasa yang cocok dengan “%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Tidak ada negara yang cocok dengan “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Di jendela</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Spanduk di bagian atas, selama beberapa detik.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Di desktop</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Di tempat desktop menampilkan kabar dari aplikasi, juga saat tidak ada jendela yang terbuka.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Dengan suara</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Angka di ikon aplikasi</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Jumlah yang belum kamu baca.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Tampilkan contoh</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Tentang apa</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Tidak akan disarankan lagi di komputer ini.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panel samping</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Buka di tab baru</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Tutup panel samping</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Lebar panel samping</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Bantu toko memilih yang ditampilkan</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Memberi tahu toko halaman mana yang dibuka, item mana yang dilihat, dimasukkan ke keranjang, dan dibeli, serta kapan aplikasi tertutup tiba-tiba, tanpa namamu. Kalau nonaktif, hanya data wajib yang dikirim.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Aktif atau tidak</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Yang wajib hanyalah yang kamu minta</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Halaman yang kamu buka, pencarian, keranjang, dan pesananmu harus sampai ke toko.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Yang kamu simpan tetap di komputer ini</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Wishlist, yang kamu lihat, dan yang kamu cari, sampai kamu menghapusnya.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Data masukmu ada di keyring</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Kalau tidak ada keyring, di file yang hanya bisa kamu baca. Berakhir setelah 60 hari, dan setiap kali kamu keluar.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Tangkapan layar disimpan</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Tangkapan layar tidak bisa disimpan</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Pastikan masih ada ruang di folder Gambar.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Tampilkan folder</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Cari, atau tempel tautan</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Cari dengan gambar…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Suara</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Pembaruan</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Pengaturan</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Bagian</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Lanjutkan dengan %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Sedang masuk…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 terbuka di browsermu. Masuk di sana, dan kamu pun masuk di sini.</translation>
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
        <translation>Kalau browser tidak terbuka sendiri</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Tidak terjadi apa-apa di sini?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Tempel tautan terakhir di browsermu</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Diawali dengan “wrenfieldstore://”. Sebagian browser menampilkannya di bilah alamat.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Selesaikan proses masuk</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Buat akunmu</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Masuk ke akunmu</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Cara masuk</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Kode email</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kata sandi</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Kami sudah mengirim kode ke %1. Mungkin perlu semenit sampai tiba.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Kami kirim kode lewat email dulu, untuk memastikan alamat itu milikmu.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Kami kirim kode lewat email untuk masuk. Kamu tidak perlu kata sandi.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Kode verifikasi</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Kirim lagi dalam %L1 dtk</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Kirim lagi</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Kirim lagi kodenya</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Kata sandi (minimal 6 karakter)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nama (opsional)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Lupa kata sandi? Masuk dengan kode email saja</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Kirim kode lewat email</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>atau lanjutkan dengan</translation>
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
        <translation>Coba</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Berhenti mendengarkan mikrofon</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Coba mikrofon</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Volume suara</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Sedang dipakai untuk panggilan.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Katakan sesuatu: bilahnya mengikuti suaramu. Tidak ada yang keluar dari komputer ini.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Menunjukkan seberapa keras suaramu. Tidak ada yang keluar dari komputer ini.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Speaker</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 membisukan mikrofon dari mana saja, selama panggilan berlangsung.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M membisukan mikrofon di jendela panggilan.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Tautan</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Cari “%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Terakhir</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Dilihat dan disimpan</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Belum ada item yang terpikir. Enter mencari di semuanya.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>untuk memilih</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>untuk menutup</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Hapus “%1” dari pencarian terakhir</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Foto: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Dibuka di browser</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Tulis pesan</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Lampirkan foto atau PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Foto dan PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Letakkan foto atau PDF di sini</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Ada yang bisa kami bantu?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Tanya soal pesanan, pengembalian, atau ukuranmu. Foto juga membantu.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Di mana pesananku?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Aku mau mengembalikan barang</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Sebaiknya aku pilih ukuran apa?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Memuat</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Tutup %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Tab baru di kanan</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Lepas sematan tab</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Sematkan tab</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Pindahkan tab ke jendela baru</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Buka lagi tab yang ditutup</translation>
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
        <translation>Bentangkan bilah samping</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Ciutkan bilah samping</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Tab baru</translation>
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
        <translation>Dihapus dari: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Perbarui</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Terakhir diperiksa: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Belum diperiksa</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Salinan LOOMSTREET ini tidak bisa memperbarui diri.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET mencari versi baru sendiri.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Untuk saat ini LOOMSTREET tidak mencari versi baru sendiri.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Versi baru datang dari tempat kamu mendapatkannya. Kamu tetap bisa memeriksanya di sini.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Saat dibuka dan setiap enam jam. Yang ditemukan diunduh di latar belakang dan dipasang saat kamu keluar dari aplikasi; kalau tidak bisa, kamu diberi tahu.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Toko sedang menjedanya. Kamu tetap bisa memeriksanya di sini.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Periksa pembaruan…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versi %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Yang baru</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Lewati versi ini</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimalkan</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Pulihkan</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maksimalkan</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Tutup jendela</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Koneksi aman ke %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Koneksi tidak aman</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Akunmu sudah dihapus.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Kamu sudah keluar sebelum akunmu sempat dihapus. Masuk lagi untuk menghapusnya.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Pengiriman</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratis</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Pajak</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln paket</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Dikonfirmasi</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Dikemas</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Dibatalkan</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Diproses</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Menunggu kurir</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Sedang diantar</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Kendala pengiriman</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Pengembalian diajukan</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Pengembalian disetujui</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Dana dikembalikan</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Pengembalian ditolak</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 dan %Ln lainnya</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Maksimal %Ln karakter.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Isi nomor telepon, misalnya %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Isi tanggal, misalnya %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Isi tanggal yang sudah lewat.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Ada isian yang tidak diterima. Periksa lalu coba lagi.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Isi alamat email yang valid.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Kode itu salah atau sudah kedaluwarsa. Minta kode baru.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Terlalu banyak percobaan. Tunggu semenit lalu coba lagi.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Email dan kata sandi itu tidak cocok. Coba lagi atau masuk dengan kode email.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Cara masuk ini belum tersedia.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Akun itu tidak punya alamat email yang bisa kami pakai. Coba cara lain.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Proses masuk dibatalkan.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Gagal masuk. Coba lagi.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Isi enam digit kodenya.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Pilih kata sandi minimal 6 karakter.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Isi kata sandimu. Panjangnya minimal 6 karakter.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Itu bukan tautan terakhir dari proses masukmu. Tautannya diawali dengan “wrenfieldstore://”.</translation>
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
        <translation>Jendela baru</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Sematkan atau lepas tab</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Geser tab ke belakang</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Geser tab ke depan</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Buka produk panel samping di halaman penuh</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Buka produk panel samping di tab baru</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Ambil tangkapan layar</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Layar penuh</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Ke awal bagian</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Tab berikutnya</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Tab sebelumnya</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Unggulan</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Terbaru</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Harga: termurah dulu</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Harga: termahal dulu</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Terlaris</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hari ini</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Kemarin</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Wanita</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Pria</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Mewah</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Tas</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Baru</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Tinggal satu</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Tinggal %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Paling cocok</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Item ini tidak bisa dikembalikan</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Cek ukuran dan warna sebelum memesan</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Dibuat untukmu</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Hanya bisa dikembalikan kalau tiba dalam keadaan cacat</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Dibuat sesuai pesanan, jadi perlu waktu lebih</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Dalam 30 hari, belum dipakai, lengkap dengan semua isinya</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Simpan kotak, dust bag, dan dokumennya</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Dalam 30 hari, sol bersih, dalam kotaknya</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Coba dulu di dalam ruangan</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Dalam 30 hari, belum dipakai, label masih ada</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Pilih %1 dulu.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln item di keranjangmu</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Kode itu tidak bisa dipakai. Coba lagi.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1” tidak berlaku untuk item di keranjangmu.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Kamu dapat GRATIS ongkir ke seluruh dunia</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Tambah %1 lagi untuk GRATIS ongkir ke seluruh dunia</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Pesanan dibuat. Akan muncul di Pesanan dalam beberapa menit.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Pesanan %1 dibuat. Akan muncul di Pesanan dalam beberapa menit.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln item  ·  konfirmasi dikirim ke emailmu</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Halamannya terlalu lama dimuat.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Halaman ini keluar dari checkout.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Halaman ini berhenti bekerja.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Checkout tidak bisa dimulai. Coba lagi.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Turun %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>kerja</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>kencan</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>pesta</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>kondangan</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>liburan</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>bepergian</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>sehari-hari</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>akhir pekan</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>sekolah</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>wawancara kerja</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>wisuda</translation>
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
        <translation>ke gym</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>acara formal</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Baru datang</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Sesuai seleramu</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Baru minggu ini</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Baru minggu ini</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Pilihan khusus</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Baru minggu ini · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Sesuai seleramu</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Disukai yang seselera denganmu</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Dari yang baru kamu lihat</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Sedang tren</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Cocok dengan pencarianmu: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Karena kamu suka gaya %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Untuk %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Pilihan gaya %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>manis</translation>
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
        <translation>romantis</translation>
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
        <translation>Prancis</translation>
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
        <translation>Jepang</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>Tionghoa modern</translation>
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
        <translation>imut</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>keren</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>utility</translation>
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
        <translation>Beranda</translation>
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
        <translation>Kotak masuk</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Terlalu banyak percobaan. Tunggu sebentar lalu coba lagi.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Sesimu sudah berakhir. Masuk lagi.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Isi alamat emailmu.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Ada data yang sepertinya keliru. Periksa lalu coba lagi.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET sedang ada gangguan. Coba sebentar lagi.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Belum berhasil. Coba lagi.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Jawaban yang diterima tidak terduga. Coba lagi.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET tidak bisa dihubungi. Coba lagi.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Konfigurasi aplikasi tidak ada.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Permintaan terlalu lama. Coba lagi.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln notifikasi lagi menunggu di kotak masukmu.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Peringatan sistem</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Kabar akun dan layanan</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Kabar pesanan</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Pesanan dikonfirmasi, dikirim, dan tiba</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Pengembalian dana dan barang</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Dana yang dikembalikan dan kabar pengembalian</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Balasan layanan pelanggan</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Saat layanan pelanggan membalasmu</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Item yang kamu tanyakan tersedia lagi</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Item yang disimpan atau dilihat jadi lebih murah</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Aktivitas Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Suka, komentar, pengikut baru, dan pesan</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Perubahan tingkat, poin, dan kupon baru</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Promo dan acara</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Sale, rilisan baru, dan acara toko</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Mengirim lampiran</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Pesanan dibuat</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Pesananmu dikonfirmasi. Akan muncul di Pesanan dalam beberapa menit.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Pesanan %1 dikonfirmasi. Akan muncul di Pesanan dalam beberapa menit.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET tidak bisa memperbarui diri</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Klik Perbarui di bagian atas jendela untuk memasang versi baru dari image disk.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Pratinjau notifikasi</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Kabar pesanan dan balasan layanan pelanggan yang baru muncul di sini.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Lemari</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Semua milikmu di satu tempat</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Studio outfit</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Padukan item dan lihat sebagai satu kesatuan</translation>
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
        <translation>Outfit yang kamu simpan</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Ide outfit</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Cara baru memakai isi lemarimu</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Saran ukuran</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Ukuran tubuhmu dan ukuran yang pas</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Cari dengan gambar</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Temukan item dari fotonya</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Bandingkan</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Hingga empat item berdampingan</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Memeriksa pembaruan…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Sudah versi terbaru</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Mengunduh LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Memeriksa unduhan…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Memasang LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Tidak bisa memeriksa pembaruan</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Pembaruan tidak bisa diunduh</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Siap dipasang</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Pasang pembaruan</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 siap dipasang</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 adalah versi terbaru.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET ditutup, lalu versi baru menggantikannya.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Sudah diunduh. Buka ulang untuk menyelesaikan, atau dipasang saat kamu keluar dari aplikasi nanti.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Di jendela yang baru terbuka, seret LOOMSTREET ke Aplikasi dan pilih Ganti. Lalu buka LOOMSTREET lagi.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET tidak bisa mengganti dirinya di komputer ini. Pasang versi baru dari image disk saja. Hanya perlu beberapa detik.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Versimu sudah tidak didukung.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Pembaruan sudah diunduh. Buka ulang LOOMSTREET untuk menyelesaikan, atau dipasang saat kamu keluar dari aplikasi nanti.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Tidak bisa memeriksa pembaruan. Periksa koneksimu lalu coba lagi.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Unduhan gagal (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Unduhan tidak lengkap atau berubah di tengah jalan. Coba lagi.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>File yang diunduh tidak bisa dibaca.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Unduhan tidak ditandatangani oleh LOOMSTREET, jadi tidak dibuka.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Unduh dan pasang</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Buka ulang untuk memperbarui</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Buka image disk</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Sepertinya kamu sedang offline.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira terlalu lama menjawab.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Kamu mengirim pesan terlalu cepat. Tunggu sebentar dulu.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Pesan dengan isi seperti ini tidak bisa dikirim.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET sedang ada gangguan.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET tidak bisa dihubungi.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Pilih ukuran untuk %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Keburu habis dan tidak ditambahkan: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Checkout tidak bisa dimulai. Periksa koneksimu lalu coba lagi.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Tinggi atau beratnya sepertinya keliru. Periksa angka dan satuannya.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Salah satu ukuran ini sepertinya keliru. Periksa angkanya, atau kosongkan.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Longgar</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Pas badan</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Reguler</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Bantu aku padukan ini: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Pesan ini belum dikonfirmasi. Kamu bisa coba lagi.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Percakapan sudah terbaru</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira sedang membalas</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira sedang membalas. Kamu bisa mengirim ini sebentar lagi.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Topik disimpan di komputer ini. Mira tetap mengingat percakapanmu dengannya.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Bantu aku cari sesuatu</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Padukan isi lemariku</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Malam ini pakai apa</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET tidak boleh melihat lokasimu. Ketik saja kotamu.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Lokasimu tidak ditemukan. Ketik saja kotamu.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Kota itu tidak dikenal. Coba kota lebih besar di dekatnya.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira belum bisa mengangkat. Coba sebentar lagi.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira sedang di panggilan lain. Coba semenit lagi.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Sambungannya tersendat. Bisa diulang?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Sambungan terputus. Telepon lagi untuk lanjut mengobrol.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Akses mikrofon mati. Aktifkan di Pengaturan Sistem › Privasi &amp; Keamanan › Mikrofon, lalu telepon lagi.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Mikrofon tidak bisa dinyalakan. Pastikan ada yang terhubung, lalu telepon lagi.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Bisukan mikrofon selama panggilan</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Ditambahkan ke keranjangmu</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>%1 ditambahkan ke keranjangmu</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Tidak bisa ditambahkan. Coba dari halaman produk.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Mengantarmu ke sana…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Membuka %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Bawaan sistem</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Tidak terhubung</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Luaran</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Atasan</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Bawahan</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Dress</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Sepatu</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Pelengkap</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Sejuk</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Cerah</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Cerah berawan</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Mendung</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Berkabut</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Gerimis</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Hujan</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Bersalju</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Hujan sesekali</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Badai petir</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>File ini sudah tidak ada.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>File ini tidak bisa dibaca.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>File ini kosong.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>File ini lebih besar dari 10 MB. Pilih yang lebih kecil.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Hanya foto dan file PDF yang bisa dikirim.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Pesan ini mungkin belum sampai.</translation>
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
        <translation>Telah tiba</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Tulis ke Layanan Pelanggan</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Percakapan dengan Layanan Pelanggan</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
