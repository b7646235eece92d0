<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>現在のページ</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>ページ全体で開く</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>送信中…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>折りたたむ</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enterで送信、Shift+Enterで改行</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>もう一度試す</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1を削除</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>以前</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>年の選択に戻る</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以降</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>展開中</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>折りたたみ中</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>最新へ移動</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>新着メッセージ %Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>オフラインのようです。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>パスワードを隠す</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>パスワードを表示</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1、元の価格 %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>在庫切れ</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>お気に入りから削除</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>お気に入りに追加</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1、在庫切れ</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1、おすすめサイズ</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>5点満点中%L1点、%2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>5点満点中%L1点</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>減らす</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>増やす</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>サインアウト</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>あなたのワードローブを、ずっと</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>アカウントがなくても、すべてご覧いただけ、お買い物もできます。アカウントがあれば、お荷物の状況もお待ちのアイテムも、まとめてお知らせします。</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>アカウントを作成</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>ご注文をひとつの場所に</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>お荷物の状況も返品も、レシートを探さずに</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>大切なときにお知らせ</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>サイズの再入荷や値下げがあったとき</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>会員特典とクーポン</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>ポイントとランク、その特典</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>スムーズな購入手続き</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>ご住所は入力済み</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>カスタマーサービス</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>ご注文・返品・サイズ</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>ご注文</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>配送中のご注文と購入履歴</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>荷物を追跡</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>荷物番号または注文番号で</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>返品</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>商品を返送する</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>あなたへのおすすめ</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>お気に入りはまだありません</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln点</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>アラート</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>再入荷と値下げ</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>会員特典</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>会員ランクとポイント</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>クーポン</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>購入手続きで使えます</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>アカウントなしで</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>プロフィール</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>お名前・誕生日・ニュースレター</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>プライバシー</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>ストアに伝わる情報</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>このコンピュータに保存</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>アカウントを削除…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>キーリングが応答しません</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>サインイン情報を安全に保管する場所で、これがないとサインインできません。ロックを解除して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>再入荷</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>値下げ</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>再入荷しました</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>値下げしました</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>登録時は%1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>このアラートを解除</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>アラート %Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>再入荷や値下げがあると、%1宛にメールでお知らせします。</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>アラートはまだありません</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>ご希望のサイズが在庫切れのアイテムでは「再入荷をお知らせ」を、そのほかのアイテムでは「値下げをお知らせ」を押してください。</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>新着</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>サインインしてアラートを表示</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>サイズの再入荷や値下げがあると、お知らせします。</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>今後メールでのお知らせはしません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1、%Ln点</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>デザイナー</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>デザイナー %Ln名</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>デザイナーを探す</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>頭文字</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>その他のデザイナー</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>%1で始まるデザイナー</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>「%1」に一致するデザイナーはいません</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>つづりを確認するか、一覧からお探しください。</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>すべてのデザイナーを表示</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>まだアイテムがありません</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>毎週、新しいアイテムが届きます。</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>見つける</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>レビュー %Ln件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln点販売済み</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>先行予約</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>いちばん人気：%1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>着こなしを相談</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>お気に入りや閲覧したアイテムと並べて</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>全世界送料無料</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>%1以上のお買い上げで</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>ご購入の前に</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>輸入関税込み</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>送料は購入手続きで計算されます</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>再入荷したらメールでお知らせします</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>再入荷をお知らせ</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>追加しました</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>カートに入れる</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>押すと取り消します</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>購入手続きを開いています…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>今すぐ購入</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>%1と通話</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>ウィンドウで開く</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>通話を終了</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>通話を表示</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>%1に電話する</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>もう一度かける</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>マイクはオンです</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>マイクはミュート中です</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>呼び出し中…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>考えています</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>話しています</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>ミュート中</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>聞いています</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>通話終了</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>ミュート解除</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>割引コード</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>カートを読み込めませんでした</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>アイテムはそのまま残っています。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>カートは空です</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>追加したアイテムがここに表示されます。</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>お買い物を続ける</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1をカートから削除しました。</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>以前のカートは期限が切れました。%Ln点入っていました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>戻す</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>%1の数量</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>カートから削除</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>カート</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>カート</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>サイドパネルで表示</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>小計</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>割引</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>輸入関税込み · 送料は購入手続きで計算されます</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>購入手続き</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>購入手続きのウィンドウでお支払いを完了してください。カートはそのまま残ります。</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>取り扱いなし</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>コレクション</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>過去30日の新着 %Ln点</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>このコレクションはご覧いただけません</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>名前が変わったか、%1では販売していない可能性があります</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>条件に合うアイテムがありません</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>絞り込みを外すと、ほかのアイテムも表示されます。</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>コーデを完成させる</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>合わせて着たいアイテム</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>こちらも人気</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>このアイテムを見た方に</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>こちらもおすすめ</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>比較するアイテムを追加</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>アイテムを追加</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>お気に入りと閲覧したアイテムから</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>お気に入りや閲覧したアイテムを、ここに追加できます。</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>%1と比較</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>素材</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>比較から削除</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>お住まいの地域では取り扱いがありません。</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>記載なし</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>%1のサイズ</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>最初に戻る</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>みんなの着こなし</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>のぞいてみる</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>フォロー中</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>フォロー中のデザイナーの新着情報</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>新着を見る</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>クローゼット</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>今日は何を着よう？</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>クローゼットを開く</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>ご注文とアラート</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>会員特典</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>特典を見る</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>荷物は今どこ？</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>ご注文 %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>ご注文を見る</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>値下げアイテム</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>気になるアイテムが値下げ中</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>好きなものを残しておく</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>お気に入り %Ln点</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>お気に入りを見る</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>アカウントを削除しますか？</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>プロフィール、アラート、会員情報、注文履歴が完全に削除されます。配送中のご注文はお届けします。この操作は取り消せません。</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>確認のためメールアドレスを入力</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>アカウントを削除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>コレクション</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>絞り込みをすべて解除</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>%1を検索</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>該当する項目がありません</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>表示を減らす</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>%Ln件すべて表示</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>下限</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>上限</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>アイテムを表示</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>%Ln点を表示</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>絞り込みを閉じる</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln点を選択中、比較は%L1点まで</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln点を選択中</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>2〜4点のアイテムを選んでください</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>新しい順</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>価格の安い順</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>価格の高い順</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>%Ln点すべてご覧いただきました</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>コレクション：%1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1を開く</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>サイズを選ぶ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>おすすめサイズ：%1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>カートに入っています</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>入れ替える</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>外す</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%Ln点中%L1点</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>%1の代わりに</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>今は似たアイテムがありません。</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Miraのセレクト</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>あなたのコーデ</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>サイズを選んで、好みでないものは入れ替え、お持ちのものは外せます。</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>ボディサイズ</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Miraがこの数値からサイズを割り出します。数値は会話に送られ、サインアウトするまでこのコンピュータにも保存されます。</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>メートル法</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>ヤード・ポンド法</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>身長（%1）</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>フィート</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>体重（%1）</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>ポンド</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>バスト（%1）</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>ウエスト（%1）</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>ヒップ（%1）</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>わからない場合は空欄のままで大丈夫です。</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>お好みのフィット感</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Miraに送る</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>このコンピュータから削除</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>これでコーデを組む</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>サイズを選んでカートに入れる</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>%1にメッセージ</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>%1を主役にしたコーデ</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>手持ちアイテム · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>手持ちアイテムでコーデ</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天気</translation>
    </message>
    <message>
        <source>More</source>
        <translation>その他</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>コーデを見る：%Ln点、すべてあなたのサイズで</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>新しいトピック</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>トピック…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>手持ちアイテムでコーデ…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>ボディサイズ…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>天気…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>ページの横に表示</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>候補</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>送信：%1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>%1との会話</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>トピックの名前</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>残す</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>トピック</translation>
    </message>
    <message>
        <source>You</source>
        <translation>あなた</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>ボディサイズを入力する</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1がこれらを優先して使い、足りないものだけ新しく加えます。</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>コーデに使えるアイテムがまだありません</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>カートとお気に入りのアイテムがここに表示されます。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln点を選択中（上限）</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>カートの中</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>お気に入り登録済み</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>今どちらですか？その日に合うコーデを考えます。</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>天気に合わせてコーデ</translation>
    </message>
    <message>
        <source>City</source>
        <translation>都市</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>現在地を使う</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>どんな予定に着ていきますか？</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>シーンや好きなアイテム、予算を伝えれば、%1がコーデを組みます。</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>サインインすると、ご注文とアラートのお知らせを確認できます。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>カスタマーサービス</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>サインインして通知を表示</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>新しい通知はありません</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>ご注文の配送、再入荷、値下げをここでお知らせします。</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>ご注文や気になるアイテムのお知らせがここに届きます。</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>未読</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>すべて既読にする</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>通知の設定</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>お届け予定：%1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>ご注文</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>注文日：%1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>お荷物</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>アイテム</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>返品と返金</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>このご注文は見つかりません</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>新しいご注文は数分後にここに表示されます。</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>別のアカウントのご注文かもしれません。</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>サインインしてご注文を表示</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>荷物番号があれば、アカウントがなくても追跡できます。</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>数量 %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>ご注文を再表示</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>ご注文を非表示</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>表示するご注文</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>配送中</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>配達済み</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>ご注文はすべて非表示です</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>配送中のご注文はありません</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>配達済みのご注文はまだありません</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>返品はありません</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>一部のご注文は非表示になっています。</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>非表示のご注文を見る</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>すべてのご注文</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>ご注文はまもなくここに表示されます</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>ご注文はまだありません</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>ご注文とその配送状況がここに表示されます。</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>サインインしてご注文を表示</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>配送状況や内容、返品の方法を確認できます。</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>このコンピュータの注文一覧で非表示にしました。</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>%L2段階中%L1段階目：%3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>お支払い内容</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>お届け先</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>返品を申し込む</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>お荷物 %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>この番号はまだ登録されていません</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>新しいお荷物は、配送業者に登録されるまで1日ほどかかることがあります。</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>配送業者のページを開く</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>配送業者からの情報はまだありません。</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>お荷物の経過</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>一時的にご利用いただけません</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>この機能は現在休止中です。時間をおいてお試しください。</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>リストから削除</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>このアイテムはご覧いただけません</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>完売したか、%1では販売していない可能性があります。</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>値下げしたらメールでお知らせします</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>値下げをお知らせ</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln点が、ご覧になったときより値下げしています</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>値下げを見守るアイテムがまだありません</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>値下げしたアイテムは今のところありません</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>お気に入りに追加したり閲覧したりしたアイテムが値下げすると、ここに表示されます。</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>お気に入りや閲覧したアイテムは、ご覧になったときと同じ価格か、別の通貨でご覧になったものです。</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>ファイナルセール</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>画像 %L1／%L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1、画像 %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>すべて見る</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>興味なし</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>%Ln日後の感想：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>ストアからの返信：%1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>レビュー</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>レビューをもっと見る</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>商品説明</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>ポイント</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Q&amp;A</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>お名前</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>電話番号</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>誕生日</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>日付を選ぶ</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>サインインに使うアドレス</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国・地域</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>変更を破棄</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存しました</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>ご登録日：%1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>ニュースレター</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>メールで受け取る</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>新着とお得な情報を%1へ</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>SMSで受け取る</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>上の欄に電話番号が必要です</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>サインインしてプロフィールを表示</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>お名前、電話番号、お知らせの受け取り設定。</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>見てみる</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>いろいろ見ていくと、好みに合うアイテムがここに並びます。</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>最近チェックしたアイテム</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>すべてクリア</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>閲覧履歴はまだありません</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>閲覧したアイテムがここに集まるので、あとからすぐに見つかります。</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>サインインすると、再入荷時にメールでお知らせします。</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>%1にメールします。不要になったら、もう一度押してください。</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>%1にメールします。</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>画像 %L1を拡大</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>「%1」の検索結果 %Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>何をお探しですか？</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>「%1」の検索結果はありません</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>つづりを確認するか、より広い言葉で検索するか、新着をご覧ください。</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>条件に合うアイテムがありません</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>絞り込みをいくつか外すと、「%1」の結果がもっと表示されます</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>サインアウトしますか？</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>カートとお気に入りはこのコンピュータに残ります。ご注文と会員特典は、もう一度サインインするとご利用いただけます。</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>サイズ表</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>サイズの単位</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>並べ替え：%1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>ツール</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>現在ご利用いただけるツールはありません。</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>荷物番号または注文番号</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>発送をお知らせするメールに記載されています。</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>この番号は見つかりません。番号を確認するか、明日もう一度お試しください。新しいお荷物は登録に1日ほどかかることがあります。</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>追跡</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>このページはご覧いただけません</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>移動したか、別のバージョンのページかもしれません。</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>ハートを押したアイテムがここに並びます。価格の変化も見守ります。</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>アカウント：%1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>アカウントを確認しています…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>サインインしていません</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>ご注文の確認、アラート、会員特典にはアカウントが必要です。閲覧とお買い物は、アカウントなしでもできます。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>デスクトップに合わせる</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>デスクトップのライト／ダークに従います</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>デスクトップのウィンドウ枠</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>ほかのウィンドウと同じく、タブの上にタイトルバーを表示</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>会話の字幕</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>お探しのものや着ていくシーンを話してください。</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>呼び出しをキャンセル</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>チャット</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>チャットに移り、文字でも続ける</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>%1と通話、%2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>通話時間：%1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>チャットに表示</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>小さくする</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>閉じてチャットで続ける</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>通話を終了して閉じる</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>映像のみ</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>大きくする</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>%1との通話を表示</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>%1と通話 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>ページ全体に広げる</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>「ご注文」からいつでも追跡できます。</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>このページを再読み込み</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Shopifyの安全な購入手続き  ·  カートはそのまま残ります</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>このページのリンクは、購入手続きの外の%1へ移動します。</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>ブラウザで開く</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>購入手続きをここに表示できません</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>ブラウザで続ける</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREETが設定されていません</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>プロジェクトフォルダでscripts/sync-secrets.shを実行し、もう一度ビルドしてください。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>閲覧履歴</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>国・地域と通貨</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>ストアの言語</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>アイテムを一覧の横に開く</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>広いウィンドウでは、アイテムを一覧の隣に表示します</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>サイズの単位</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>センチメートルとキログラム</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>インチとポンド</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>無題のページ</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>スライドショーを一時停止</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>スライドショーを再生</translation>
    </message>
    <message>
        <source>Space</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Space</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>この画像を読み込めませんでした</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>地域と言語：%1、%2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>地域と言語</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>言語を検索</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>国・地域と通貨を検索</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>国・地域</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>「%1」に一致する言語はありません</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>「%1」に一致する国・地域はありません</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>ウィンドウ内</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>上部に数秒間バナーを表示します。</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>デスクトップの通知欄に、ウィンドウを閉じている間も表示します。</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>サウンドを鳴らす</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>アプリのアイコンに件数を表示</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>未読の通知の数です。</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>例を表示</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>通知する内容</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>このコンピュータでは、今後おすすめに表示しません。</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>サイドパネル</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>新しいタブで開く</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>サイドパネルを閉じる</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>サイドパネルの幅</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>ストアのおすすめの改善に協力する</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>閲覧したページとアイテム、カートへの追加、購入、アプリの予期しない終了を、お名前なしでストアに伝えます。オフのときは、必要な情報だけを送ります。</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>どちらの場合も</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>必要な情報は、ご利用そのもの</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>開いたページ、検索、カート、ご注文は、ストアに届く必要があります。</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>保存したものはこのコンピュータに</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>お気に入り、閲覧履歴、検索履歴は、消去するまでここに残ります。</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>サインイン情報はキーリングに</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>キーリングがない場合は、あなただけが読めるファイルに保存します。60日後、またはサインアウトしたときに無効になります。</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>スクリーンショットを保存しました</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>スクリーンショットを保存できませんでした</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>「ピクチャ」フォルダに空きがあるか確認してください。</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>フォルダを表示</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>検索、またはリンクを貼り付け</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>画像で検索…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>サウンド</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>セクション</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>%1で続ける</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>サインインしています…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>ブラウザで%1が開きます。そこでサインインすると、こちらでもサインインされます。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>アドレスをコピー</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>ブラウザが自動で開かない場合</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>サインインが完了しませんか？</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>ブラウザに最後に表示されたリンクを貼り付け</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>「wrenfieldstore://」で始まります。アドレスバーに表示されるブラウザもあります。</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>サインインを完了</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>アカウントを作成</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>アカウントにサインイン</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>サインインの方法</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>メールコード</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>%1にコードを送りました。届くまで1分ほどかかることがあります。</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>ご本人のアドレスか確認するため、まずコードをメールでお送りします。</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>サインイン用のコードをメールでお送りします。パスワードは不要です。</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>確認コード</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>再送信（%L1秒後）</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>再送信</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>コードを再送信</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>パスワード（6文字以上）</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>お名前（任意）</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>パスワードをお忘れですか？メールコードでサインイン</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>コードをメールで受け取る</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>または次の方法で続ける</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>テスト</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>マイクのテストを停止</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>マイクをテスト</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>通話に使用中です。</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>何か話すと、バーが声に合わせて動きます。音声がこのコンピュータの外に出ることはありません。</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>声の大きさを表示します。音声がこのコンピュータの外に出ることはありません。</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>スピーカー</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>通話中は、どこからでも%1でマイクをミュートできます。</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>通話のウィンドウでは、Mキーでマイクをミュートできます。</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>「%1」を検索</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近の検索</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>閲覧・お気に入り</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>候補のアイテムがありません。Enterで全アイテムから検索します。</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>で選択</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>で閉じる</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>最近の検索から「%1」を削除</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>画像：%1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>ブラウザで開きます</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>メッセージを入力</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>画像またはPDFを添付</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>画像とPDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>画像またはPDFをここにドロップ</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>どのようなご用件でしょうか？</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>ご注文、返品、サイズについてお気軽にどうぞ。画像も送れます。</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>注文した商品は今どこですか？</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>返品したいです</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>どのサイズを選べばいいですか？</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>読み込み中</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1を閉じる</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>右側に新しいタブ</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>タブの固定を解除</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>タブを固定</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>タブを新しいウィンドウに移動</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>閉じたタブを開く</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>タブを閉じる</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>ほかのタブを閉じる</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>サイドバーを広げる</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>サイドバーをたたむ</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>新しいタブ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>%1から削除しました</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>最終確認：%1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>まだ確認していません</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>このLOOMSTREETは自動でアップデートできません。</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREETは新しいバージョンを自動で確認します。</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREETは現在、新しいバージョンを自動で確認していません。</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>新しいバージョンは入手元から届きます。ここで確認することもできます。</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>起動時と6時間ごとに確認します。見つかったものはバックグラウンドでダウンロードし、終了時にインストールします。できない場合はお知らせします。</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>ストアが一時停止しています。ここで確認することはできます。</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>新機能</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元のサイズに戻す</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>ウィンドウを閉じる</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>%1への安全な接続</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>接続は安全ではありません</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>アカウントを削除しました。</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>アカウントを削除する前にサインアウトされました。削除するには、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>送料</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>無料</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>税金</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>お荷物 %Ln個</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>注文確定</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>梱包済み</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>手続き中</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>配送業者の集荷待ち</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>配達中</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>配送トラブル</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>返品申請済み</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>返品承認済み</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>返金済み</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>返品不承認</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 ほか%Ln点</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>%Ln文字以内で入力してください。</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>電話番号を入力してください（例：%1）。</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>日付を入力してください（例：%1）。</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>過去の日付を入力してください。</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>入力内容の一部が受け付けられませんでした。確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>有効なメールアドレスを入力してください。</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>コードが違うか、期限が切れています。新しいコードをリクエストしてください。</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>試行回数が多すぎます。1分ほど待って、もう一度お試しください。</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>メールアドレスとパスワードが一致しません。もう一度試すか、メールコードでサインインしてください。</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>このサインイン方法はまだご利用いただけません。</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>このアカウントには利用できるメールアドレスがありません。別の方法をお試しください。</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>サインインはキャンセルされました。</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>サインインできませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>6桁のコードを入力してください。</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>6文字以上のパスワードを設定してください。</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>パスワードを入力してください。6文字以上です。</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>サインイン完了時のリンクではありません。「wrenfieldstore://」で始まるリンクです。</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREET ヘルプセンター</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>規約</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>新しいウィンドウ</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>タブを固定／解除</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>タブを左へ移動</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>タブを右へ移動</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>サイドパネルの商品をページ全体で開く</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>サイドパネルの商品を新しいタブで開く</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>スクリーンショットを撮る</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>フルスクリーン</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>セクションのトップへ</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>次のタブ</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>前のタブ</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>おすすめ順</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>新着順</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>価格の安い順</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>価格の高い順</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>売れ筋順</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>レディース</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>メンズ</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>ラグジュアリー</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>バッグ</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>小物・アクセサリー</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>%1から</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>%1まで</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>ファイナルセール</translation>
    </message>
    <message>
        <source>New</source>
        <translation>NEW</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>残り1点</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>残り%Ln点</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>関連度順</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>このアイテムは返品できません</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>ご注文前にサイズとカラーをご確認ください</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>受注生産</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>不良品の場合のみ返品できます</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>ご注文後に製作するため、お届けまでお時間をいただきます</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>30日以内、未使用、付属品がすべて揃ったもの</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>箱、保存袋、付属書類を保管してください</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>30日以内、靴底に傷や汚れがなく、箱入りのもの</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>まずは室内で試し履きを</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>30日以内、未着用、タグ付きのもの</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>先に%1を選んでください。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>カートに%Ln点</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>コードを適用できませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>「%1」はカート内のアイテムには使えません。</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>全世界送料無料になりました</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>あと%1で全世界送料無料</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>ご注文が完了しました。数分後に「ご注文」に表示されます。</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>ご注文 %1が完了しました。数分後に「ご注文」に表示されます。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln点  ·  確認メールをお送りしました</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>ページの読み込みに時間がかかりすぎました。</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>購入手続きの外に出るページです。</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>ページが応答しなくなりました。</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>購入手続きを開始できませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>%1お得に</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>お仕事</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>デート</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>パーティー</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>結婚式</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>バカンス</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>旅行</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>普段使い</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>週末</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>通学</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>面接</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>卒業式</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>フェス</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>ビーチ</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>夜のお出かけ</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>ブランチ</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>ジム</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>フォーマルな場</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>新着アイテム</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>お好みに合わせて</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>今週の新着</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>今週の新着</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>厳選アイテム</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>今週の新着 · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>お好みに合わせて</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>好みの近い方に人気</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>閲覧履歴に合わせて</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>今のトレンド</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>「%1」の検索にぴったり</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>%1がお好きなあなたに</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>%1におすすめ</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>%1スタイルのおすすめ</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>スイート</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>ヴィンテージ</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>エレガント</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>ミニマル</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>ロマンティック</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>ストリート</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>ゴシック</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>プレッピー</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>フレンチ</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>エッジィ</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>パンク</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>コケット</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>カジュアル</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>ボーホー</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>フェス</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>クラシック</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>スポーティ</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>シック</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>グランジ</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>韓国風</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>和風</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>新中国風</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>オールドマネー</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>クワイエットラグジュアリー</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>ダークアカデミア</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>バレエコア</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>コテージコア</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>セクシー</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>キュート</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>クール</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>フェミニン</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>ジェンダーレス</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>ワークウェア</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>フォーマル</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>グラマラス</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>アヴァンギャルド</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>ユーティリティ</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>ウエスタン</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>リゾート</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>セール</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>受信箱</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>試行回数が多すぎます。少し待って、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>セッションの期限が切れました。もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>メールアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>入力内容に誤りがあるようです。確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREETに現在問題が発生しています。しばらくしてからお試しください。</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>うまくいきませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>予期しない応答がありました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREETに接続できませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>アプリの設定が見つかりません。</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>時間内に応答がありませんでした。もう一度お試しください。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>受信箱にほか%Ln件の通知があります。</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>システム通知</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>アカウントとサービスの更新情報</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>ご注文の状況</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>ご注文の確定・発送・配達</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>返金と返品</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>返金の完了と返品の状況</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>カスタマーサービスの返信</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>カスタマーサービスから返信が届いたとき</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>再入荷をお待ちのアイテムが入荷したとき</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>お気に入りや閲覧したアイテムが値下げしたとき</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Vessaのアクティビティ</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>いいね、コメント、新しいフォロワー、メッセージ</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>ランクの変更、ポイント、新しいクーポン</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>キャンペーンとイベント</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>セール、新作、ストアのイベント</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>添付ファイルを送信しました</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>ご注文完了</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>ご注文を承りました。数分後に「ご注文」に表示されます。</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>ご注文 %1を承りました。数分後に「ご注文」に表示されます。</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREETをアップデートできませんでした</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>ウィンドウ上部の「アップデート」をクリックし、ディスクイメージから新しいバージョンをインストールしてください。</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>通知のプレビュー</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>ご注文の状況やカスタマーサービスの返信がここに表示されます。</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>クローゼット</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>お手持ちの服をひとつの場所に</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>コーデスタジオ</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>アイテムを組み合わせて、全体を確認</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>ルックブック</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>保存したコーデ</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>コーデのアイデア</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>クローゼットの服の新しい着こなし</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>サイズアドバイス</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>ボディサイズから、ぴったりのサイズを</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>画像で検索</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>写真からアイテムを探す</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>比較</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>最大4点を並べて</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認しています…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>最新の状態です</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>LOOMSTREET %1をダウンロード中</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>ダウンロードを確認しています…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>LOOMSTREET %1をインストール中</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>アップデートをダウンロードできませんでした</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>インストールの準備完了</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>アップデートをインストール</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1をインストールできます</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1は最新バージョンです。</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREETを終了し、新しいバージョンに置き換えます。</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>ダウンロードしました。再起動すると完了します。または次回の終了時にインストールします。</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>開いたウィンドウでLOOMSTREETを「アプリケーション」にドラッグし、「置き換える」を選んでください。その後、LOOMSTREETをもう一度開いてください。</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>このコンピュータではLOOMSTREETを自動で置き換えられませんでした。ディスクイメージから新しいバージョンをインストールしてください。数秒で終わります。</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>お使いのバージョンはサポートが終了しました。</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>アップデートをダウンロードしました。LOOMSTREETを再起動すると完了します。または次回の終了時にインストールします。</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>アップデートを確認できませんでした。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>ダウンロードに失敗しました（HTTP %1）。</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>ダウンロードが不完全か、途中で変更されています。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>ダウンロードしたファイルを読み込めませんでした。</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>LOOMSTREETの署名がないため、ダウンロードしたファイルを開きませんでした。</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>ダウンロードしてインストール</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>再起動してアップデート</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>ディスクイメージを開く</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>オフラインのようです。</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Miraからの応答に時間がかかりすぎました。</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>メッセージの送信が速すぎます。少しお待ちください。</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>このメッセージはこのままでは送信できませんでした。</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREETに現在問題が発生しています。</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREETに接続できませんでした。</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>サイズを選んでください：%1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>在庫切れのため追加できませんでした：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>購入手続きを開始できませんでした。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>身長または体重が正しくないようです。数値と単位を確認してください。</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>正しくない数値があるようです。確認するか、空欄にしてください。</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>ゆったり</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>タイト</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>レギュラー</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>着こなしを相談：%1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>このメッセージは送信を確認できていません。もう一度お試しいただけます。</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>会話は最新です</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Miraが返信中です</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Miraが返信中です。少し待つと送信できます。</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>トピックはこのコンピュータに保存されます。会話の記憶は、全トピック共通でMiraが保持します。</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>アイテム探しを手伝って</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>クローゼットの服でコーデして</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>今夜は何を着よう？</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREETには現在地へのアクセスが許可されていません。都市名を入力してください。</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>現在地が見つかりませんでした。都市名を入力してください。</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>その都市は見つかりません。近くの大きな都市でお試しください。</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Miraは今、電話に出られません。少し待ってお試しください。</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Miraは別の通話中です。1分ほど待ってお試しください。</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>音声が途切れました。もう一度お話しいただけますか？</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>通話が切れました。もう一度かけると続きを話せます。</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>マイクへのアクセスがオフです。システム設定 › プライバシーとセキュリティ › マイクでオンにして、もう一度かけてください。</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>マイクを開始できませんでした。接続を確認して、もう一度かけてください。</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>通話中にマイクをミュート</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>カートに追加しました</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>%1をカートに追加しました</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>追加できませんでした。商品ページからお試しください。</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>ページに移動しています…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1を開いています</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>システムの既定</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>アウター</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>トップス</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>ボトムス</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>ワンピース・ドレス</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>シューズ</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>小物</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>穏やか</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>晴れ</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>晴れ時々曇り</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>曇り</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>霧</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>霧雨</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>雨</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>雪</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>にわか雨</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>雷雨</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>このファイルはもうありません。</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>このファイルを読み込めませんでした。</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>このファイルは空です。</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>このファイルは10 MBを超えています。小さいファイルを選んでください。</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>送信できるのは画像とPDFファイルだけです。</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>このメッセージは届いていない可能性があります。</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>非表示</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>配送中</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>配達済み</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>カスタマーサービスにメッセージ</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>カスタマーサービスとの会話</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
</context>
</TS>
