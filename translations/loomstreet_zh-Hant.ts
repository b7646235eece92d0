<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>目前位置</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>開啟完整頁面</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>傳送中…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>收合</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>顯示全部</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>按 Enter 傳送，Shift+Enter 換行</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>傳送</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試一次</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>移除%1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>較早</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>返回選擇年份</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>較晚</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>已展開</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>已收合</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>跳至最新訊息</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln 則新訊息</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>目前似乎沒有連線，請檢查連線後再試一次。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>隱藏密碼</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>顯示密碼</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1，原價 %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>已售完</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>處理中</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>從願望清單移除</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>加入願望清單</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一個</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一個</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1，已售完</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1，推薦給你</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>評分 %L1（滿分 5 分），%2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>評分 %L1（滿分 5 分）</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>減少</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>增加</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>你的帳戶</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>登出</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>你的衣櫥，我們都記得</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>沒有帳戶，一樣能逛能買。有了帳戶，包裹到哪裡、你在等哪件單品，我們都幫你留意。</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>建立帳戶</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>訂單一次掌握</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>包裹動態隨時看，退貨不必翻找收據</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>重要消息，及時提醒</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>你的尺寸補貨了，或是價格降了</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>會員與優惠券</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>點數、等級與專屬禮遇</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>懂你的結帳流程</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>地址已先幫你填好</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>客戶服務</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>訂單、退貨與尺寸</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>訂單</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>配送中與買過的</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>追蹤包裹</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>用包裹號碼或訂單編號</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>退貨</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>寄回商品</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>為你推薦</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>願望清單</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>還沒有收藏</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln 件單品</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>提醒</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>補貨與降價</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>會員</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>你的等級與點數</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>優惠券</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>結帳時可使用</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>帳戶</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>不需帳戶</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>個人資料</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>姓名、生日與電子報</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>隱私權</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>商店會知道哪些事</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>存放在這部電腦</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>刪除帳戶…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>金鑰圈沒有回應</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>登入資訊由金鑰圈保管，少了它便無法登入。請先解鎖，再試一次。</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>補貨</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>降價</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>已經補貨</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>現已降價</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>設定提醒時 %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>停止這則提醒</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln 則提醒</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>單品補貨或降價時，我們會寄信到 %1 通知你。</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>還沒有提醒</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>你的尺寸已售完時，請按「補貨通知我」；其他單品則可按「降價通知我」。</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>新品</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>登入即可查看提醒</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>你的尺寸補貨或價格調降時，我們會告訴你。</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>我們不會再為此寄信給你。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1，%Ln 件單品</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>設計師品牌</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln 個設計師品牌</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>尋找設計師品牌</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>字母</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>其他設計師品牌</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>%1 開頭的設計師品牌</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>找不到符合「%1」的設計師品牌</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>請檢查拼字，或瀏覽全部品牌。</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>顯示所有設計師品牌</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>這裡還沒有內容</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>每週都有新品上架。</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>探索</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln 則評價</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>已售出 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>預購</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>最多人選：%1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>幫我搭配</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>和收藏或看過的單品並排看</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>全球免運費</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>購物袋滿 %1 即享</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>購買須知</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>已含進口關稅</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>運費於結帳時計算</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>補貨時我們會寄信通知你</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>補貨通知我</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>已加入</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>加入購物袋</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>再按一次即可取消</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>正在開啟結帳…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>立即購買</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>與%1通話</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>在視窗中開啟</translation>
    </message>
    <message>
        <source>End</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>結束通話</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>顯示通話</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>打給%1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>再打一次</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>麥克風已開啟</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>麥克風已靜音</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>撥打中…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>思考中</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>說話中</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>已靜音</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>聆聽中</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>通話已結束</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>取消靜音</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>折扣碼</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>無法載入購物袋</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>你的商品都還在。請檢查連線後再試一次。</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>購物袋是空的</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>加入的商品會出現在這裡。</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>繼續購物</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>已移除%1。</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>先前的購物袋已過期，裡面有 %Ln 件商品。</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>放回</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>%1的數量</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>從購物袋移除</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>購物袋</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>購物袋</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>以側邊面板顯示</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>小計</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>折扣</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>總計</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>已含進口關稅 · 運費於結帳時計算</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>結帳</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>請在結帳視窗完成付款，購物袋會維持原樣。</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>無法購買</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>系列</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>近 30 天新品 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>目前無法瀏覽這個系列</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>可能已改名，或未在%1販售</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>沒有符合篩選條件的商品</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>移除篩選條件，就能看到更多。</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>完成整套造型</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>適合搭在一起的單品</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>也很受喜愛</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>看過這件單品的人也看</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>你可能也會喜歡</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>加入要比較的單品</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>加入單品</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>來自願望清單與瀏覽紀錄</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>先收藏或看看單品，再加到這裡。</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>與%1比較</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>材質成分</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>從比較中移除</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>你所在的地區未販售。</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>未標示</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>%1的尺寸</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>回到第一個</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>看看大家怎麼穿</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>隨意逛逛</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>追蹤中</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>你追蹤的設計師品牌消息</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>看看最新消息</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>衣櫥</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>今天穿什麼？</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>打開衣櫥</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>你的訂單與提醒</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>你的會員資格</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>看看有哪些禮遇</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>我的包裹在哪裡？</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>訂單 %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>查看訂單</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>降價單品</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>你喜歡的單品降價了</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>把喜歡的留下來</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>已收藏 %Ln 件單品</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>查看願望清單</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>要刪除帳戶嗎？</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>你的個人資料、提醒、會員資格與訂單紀錄將永久刪除。配送中的訂單仍會送達。這個動作無法復原。</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>輸入你的電子郵件地址以確認</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>刪除帳戶</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>篩選</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>清除所有篩選條件</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>在%1中尋找</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>找不到這個名稱</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>顯示較少</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>顯示全部 %Ln 項</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>最低</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>顯示單品</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>顯示 %Ln 件單品</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>關閉篩選</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>已選 %Ln 件，最多可比較 %L1 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>已選 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>請選擇 2 到 4 件單品</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選取</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>最新優先</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>價格由低至高</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>價格由高至低</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>%Ln 件全部看完了</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>系列：%1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>開啟%1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>選擇尺寸</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>推薦給你：%1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>已在購物袋中</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>換一件</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>不要這件</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1／%Ln 件單品</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>替換%1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>目前沒有類似的單品。</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira 的選擇</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>你的造型</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>選好尺寸，換掉沒那麼喜歡的，已經有的就拿掉。</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>公分</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>英吋</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>你的身材數據</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira 會依此推算你的尺寸。數據會放進你們的對話，這部電腦也會留一份，直到你登出。</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>單位</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>公制</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>英制</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>身高（%1）</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>英尺</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>體重（%1）</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>公斤</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>磅</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>胸圍（%1）</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>腰圍（%1）</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>臀圍（%1）</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>不確定的話，留白即可。</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>喜歡的版型</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>傳給 Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>從這部電腦刪除</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>用它搭一套造型</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>選擇尺寸並加入購物袋</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>傳訊息給%1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>以%1搭造型</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>我的單品 · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>用我的單品搭配</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天氣</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>看看造型：%Ln 件單品，都是你的尺寸</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>新話題</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>話題…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>用我的單品搭配…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>我的身材數據…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>天氣…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>顯示在頁面旁</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>建議</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>傳送：%1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>與%1的對話</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>話題名稱</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>要刪除「%1」嗎？</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>話題</translation>
    </message>
    <message>
        <source>You</source>
        <translation>你</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>輸入我的身材數據</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1會先用這些單品，不足的才添新品。</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>還沒有可以搭配的單品</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>購物袋和願望清單裡的單品會出現在這裡。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>已選 %Ln 件，已達上限</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>在購物袋中</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>在願望清單中</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>你在哪裡？造型會配合當天的天氣。</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>依天氣幫我搭配</translation>
    </message>
    <message>
        <source>City</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>使用我的位置</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>這次要為什麼場合打扮？</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>告訴%1場合、喜歡的單品或預算，她就幫你搭好。</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>登入後即可查看訂單與提醒的通知。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系統</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>客戶服務</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>登入即可查看通知</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>沒有新通知</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>訂單配送、補貨與降價的消息，都會在這裡告訴你。</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>和你的訂單、關注單品有關的消息會出現在這裡。</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>未讀</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>全部標示為已讀</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>通知設定</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>預計送達：%1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>訂單</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>訂購日期：%1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>包裹</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>單品</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>退貨與退款</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>這裡沒有這筆訂單</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>新訂單幾分鐘後會出現在這裡。</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>可能屬於另一個帳戶。</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>登入即可查看這筆訂單</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>有包裹號碼，不需帳戶也能追蹤。</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>數量 %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>已隱藏</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>重新顯示訂單</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>隱藏訂單</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>顯示哪些訂單</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>配送中</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>已送達</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>所有訂單都已隱藏</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>沒有配送中的訂單</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>還沒有已送達的訂單</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>沒有退貨</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>部分訂單已隱藏。</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>顯示隱藏的訂單</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>所有訂單</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>你的訂單很快就會出現在這裡</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>還沒有訂單</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>你訂購的商品和配送進度會顯示在這裡。</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>登入即可查看訂單</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>查看配送進度、訂購內容與退貨方式。</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>已從這部電腦的訂單列表中隱藏。</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>第 %L1 步，共 %L2 步：%3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>金額明細</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>收件地址</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>申請退貨</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>包裹 %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>目前還查不到這個號碼</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>新包裹可能要一天後才能在物流業者查到。</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>開啟物流業者頁面</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>物流業者尚未提供任何資訊。</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>包裹動態</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>暫時無法使用</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>這項功能目前暫停，請稍後再試。</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>從清單移除</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>目前無法瀏覽這件單品</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>可能已售完且不再補貨，或未在%1販售。</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>降價時我們會寄信通知你</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>降價通知我</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln 件單品比你看到時更便宜</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>還沒有可留意的單品</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>目前沒有降價單品</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>收藏或看過的單品一降價，就會出現在這裡。</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>你收藏和看過的單品價格與當時相同，或當時是以其他幣別顯示。</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>最後特賣</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>第 %L1 張圖片，共 %L2 張</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1，圖片 %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>查看全部</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>不感興趣</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>%Ln 天後：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>商店回覆：%1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>評價</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>更多評價</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>商品描述</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>特色</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>商品細節</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>問與答</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>電話</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>生日</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>選擇日期</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>你用來登入的電子郵件地址</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>國家／地區</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>捨棄變更</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已儲存</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>加入日期：%1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>電子報</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>以電子郵件接收</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>新品與優惠，寄至 %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>以簡訊接收</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>需先在上方填寫電話號碼</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>登入即可查看個人資料</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>你的姓名、電話號碼，以及想收到哪些訊息。</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>去看看</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>隨意逛逛，合適的單品就會出現在這裡。</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>最近瀏覽</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>全部清除</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>還沒有足跡</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>看過的單品都收在這裡，方便你再找回來。</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>登入後，補貨時我們會寄信通知你。</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>通知信會寄到 %1。不需要的話，再按一次即可。</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>通知信會寄到 %1。</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>放大圖片 %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>「%1」的 %Ln 筆結果</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>想找什麼呢？</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>找不到「%1」的結果</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>請檢查拼字、換個更廣的字詞，或逛逛新品。</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>沒有符合篩選條件的結果</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>移除一兩個篩選條件，看看更多「%1」的結果</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>要登出嗎？</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>購物袋和願望清單會留在這部電腦。重新登入後，就能再查看訂單與會員資訊。</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>尺寸表</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>尺寸單位</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>排序：%1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>工具</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>目前沒有可用的工具。</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>包裹號碼或訂單編號</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>出貨通知信裡有這個號碼。</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>查不到這個號碼。請確認號碼，或明天再試：新包裹可能要一天後才查得到。</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>追蹤</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>目前無法瀏覽這個頁面</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>可能已經移動，或屬於其他版本。</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>按下單品上的愛心，它就會在這裡等你。價格我們也會幫你留意。</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>你的帳戶：%1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>正在尋找你的帳戶…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>尚未登入</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>訂單、提醒與會員功能需要帳戶；瀏覽和購買則不用。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外觀</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>顏色</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>跟隨桌面</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>隨桌面切換淺色與深色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>使用桌面的視窗外框</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>和其他視窗一樣，在分頁上方顯示標題列</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>View</source>
        <translation>檢視</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>前往</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>通話字幕</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>說說你想找什麼，或要穿去哪裡。</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>取消撥打</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>聊天</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>到聊天繼續，也可以打字</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>與%1通話，%2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>通話時間：%1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>在聊天中顯示</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>關閉並到聊天繼續</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>結束通話並關閉</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>只顯示畫面</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>顯示與%1的通話</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>與%1通話 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>展開為完整頁面</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>隨時可在「訂單」中追蹤。</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>重新載入此頁面</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Shopify 安全結帳  ·  購物袋會維持原樣</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>此頁面的連結會離開結帳，前往 %1。</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>在瀏覽器中開啟</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>無法在這裡顯示結帳頁面</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>在瀏覽器中繼續</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET 尚未完成設定</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>請在專案資料夾執行 scripts/sync-secrets.sh，然後重新建置。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>足跡</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>國家／地區與幣別</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>商店語言</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>在列表旁開啟單品</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>視窗夠寬時，單品會顯示在列表旁邊</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>尺寸單位</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>公分與公斤</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>英吋與磅</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>未命名頁面</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>暫停幻燈片</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>播放幻燈片</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空白鍵</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>無法載入這張圖片</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>地區與語言：%1、%2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>地區與語言</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>搜尋語言</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>搜尋國家／地區與幣別</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>國家／地區</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>找不到符合「%1」的語言</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>找不到符合「%1」的國家／地區</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>在視窗中</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>在視窗上方顯示幾秒鐘的橫幅。</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>在桌面上</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>顯示在桌面的通知區，沒有開啟視窗時也看得到。</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>播放音效</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>在應用程式圖示上顯示數量</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>未讀通知的數量。</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>顯示範例</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>通知項目</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>這部電腦上不會再推薦它。</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>側邊面板</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>在新分頁中開啟</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>關閉側邊面板</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>側邊面板寬度</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>協助商店決定要顯示什麼</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>告訴商店你瀏覽了哪些頁面和單品、放入購物袋和購買了哪些單品，以及應用程式何時意外結束，不含你的姓名。關閉後，只傳送必要資訊。</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>無論開啟或關閉</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>必要資訊就是你的要求</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>你開啟的頁面、搜尋、購物袋和訂單，都必須傳到商店。</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>你保留的內容只留在這部電腦</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>願望清單、瀏覽紀錄和搜尋紀錄會一直保留，直到你清除。</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>登入資訊存放在金鑰圈</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>沒有金鑰圈時，會存放在只有你能讀取的檔案中。60 天後或登出時失效。</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>已儲存螢幕截圖</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>無法儲存螢幕截圖</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>請確認「圖片」資料夾有足夠空間。</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>顯示資料夾</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>搜尋，或貼上連結</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>以圖搜尋…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>聲音</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>專區</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>以 %1 繼續</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>正在登入…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>瀏覽器會開啟 %1。在那裡登入後，這裡也會完成登入。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已複製</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>複製網址</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>供未自動開啟的瀏覽器使用</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>這裡沒有反應？</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>貼上瀏覽器最後顯示的連結</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>開頭是「wrenfieldstore://」。有些瀏覽器會顯示在網址列。</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>完成登入</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>建立你的帳戶</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>登入你的帳戶</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>登入方式</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>郵件驗證碼</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>驗證碼已寄到 %1，可能需要一分鐘才會送達。</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>我們會先寄驗證碼給你，確認這是你的電子郵件地址。</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>我們會寄登入用的驗證碼給你，不需要密碼。</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>驗證碼</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>%L1 秒後可重新傳送</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>重新傳送</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>重新傳送驗證碼</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>密碼（6 個字元以上）</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>姓名（選填）</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>忘記密碼？改用郵件驗證碼登入</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>寄驗證碼給我</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>或以下列方式繼續</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麥克風</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>試試看</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>停止測試麥克風</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>測試麥克風</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>通話正在使用麥克風。</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>說說話吧：音量條會跟著你的聲音動。聲音不會離開這部電腦。</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>顯示你的音量大小。聲音不會離開這部電腦。</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>揚聲器</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>通話期間，無論在哪裡，按 %1 都能將麥克風靜音。</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>在通話視窗中按 M 可將麥克風靜音。</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>搜尋「%1」</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近搜尋</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>看過與收藏</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>沒有符合的單品建議。按 Enter 搜尋所有單品。</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>選擇</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>從最近搜尋移除「%1」</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>圖片：%1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>在瀏覽器中開啟</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>輸入訊息</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>附加圖片或 PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>圖片與 PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>將圖片或 PDF 拖放到這裡</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>有什麼可以幫你的嗎？</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>訂單、退貨或尺寸都可以問，附上圖片也有幫助。</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>我的訂單在哪裡？</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>我想退貨</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>我該選哪個尺寸？</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>載入中</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>關閉%1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>在右側開新分頁</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>取消釘選分頁</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>釘選分頁</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>將分頁移至新視窗</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>重新開啟已關閉的分頁</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>關閉分頁</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>關閉其他分頁</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>展開側邊欄</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>收合側邊欄</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>分頁</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>新分頁</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一頁</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>下一頁</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>選單</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>已從%1移除</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>上次檢查：%1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>尚未檢查</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>這份 LOOMSTREET 無法自行更新。</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET 會自動檢查新版本。</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET 目前不會自動檢查新版本。</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>新版本由你取得它的來源提供。你仍可在這裡檢查。</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>啟動時及每六小時檢查一次。找到的新版本會在背景下載，並於結束時安裝；無法安裝時會通知你。</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>商店已暫停自動檢查。你仍可在這裡檢查。</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>檢查更新…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>新功能</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>略過此版本</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>關閉視窗</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>與 %1 的安全連線</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>連線不安全</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>你的帳戶已刪除。</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>帳戶刪除前你已被登出。若要刪除，請重新登入。</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>運費</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>免費</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>稅金</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln 件包裹</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>已確認</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>已包裝</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>處理中</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>等待物流業者收件</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>派送中</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>配送異常</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>已申請退貨</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>退貨已核准</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>已退款</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>退貨未通過</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 等，另有 %Ln 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>最多 %Ln 個字元。</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>請輸入電話號碼，例如 %1。</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>請輸入日期，例如 %1。</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>請輸入過去的日期。</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>部分內容未被接受，請檢查後再試一次。</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>請輸入有效的電子郵件地址。</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>驗證碼錯誤或已過期，請重新索取。</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>嘗試次數過多，請等一分鐘再試。</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>電子郵件與密碼不符。請再試一次，或用郵件驗證碼登入。</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>這種登入方式尚未開放。</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>這個帳戶沒有可用的電子郵件地址，請換一種方式。</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>已取消登入。</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>登入失敗，請再試一次。</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>請輸入六位數驗證碼。</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>請設定 6 個字元以上的密碼。</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>請輸入密碼，共 6 個字元以上。</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>這不是登入完成時的連結。開頭應為「wrenfieldstore://」。</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREET 說明中心</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>條款與協議</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>新視窗</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>釘選或取消釘選分頁</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>將分頁向左移</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>將分頁向右移</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>在完整頁面開啟側邊面板的商品</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>在新分頁開啟側邊面板的商品</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>擷取螢幕畫面</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全螢幕</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>前往專區首頁</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>下一個分頁</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>上一個分頁</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>精選推薦</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>最新上架</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>價格由低至高</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>價格由高至低</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>熱銷優先</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>女裝</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>男裝</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>精品</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>包款</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>配件</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>%1 起</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>%1 以下</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>最後特賣</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新品</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>只剩一件</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>只剩 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>最相關</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>這件單品恕不退貨</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>下單前請確認尺寸與顏色</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>為你訂製</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>僅限收到瑕疵品時退貨</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>接單後製作，請預留較長時間</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>30 天內、未使用、包裝配件齊全</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>請保留盒子、防塵袋與卡證</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>30 天內、鞋底無痕、附原鞋盒</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>請先在室內試穿</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>30 天內、未穿著、吊牌未剪</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>請先選擇%1。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>購物袋中有 %Ln 件商品</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>無法套用這組折扣碼，請再試一次。</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>「%1」不適用於購物袋中的商品。</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>已享全球免運費</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>再買 %1 即享全球免運費</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>訂單已成立，幾分鐘後會出現在「訂單」中。</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>訂單 %1 已成立，幾分鐘後會出現在「訂單」中。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln 件單品  ·  確認信已寄出</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>頁面載入時間過久。</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>這個頁面會離開結帳。</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>頁面已停止運作。</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>無法開始結帳，請再試一次。</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>現省 %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>上班</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>約會</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>派對</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>婚禮</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>度假</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>旅行</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>日常</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>週末</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>上學</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>面試</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>畢業典禮</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>音樂祭</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>海邊</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>夜晚外出</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>早午餐</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>健身房</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>正式場合</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>新品上架</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>依你的喜好推薦</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>本週新品</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>本週新品</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>精心挑選</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>本週新品 · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>依你的喜好推薦</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>品味相近的人也喜歡</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>依你的瀏覽紀錄推薦</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>現正流行</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>符合你搜尋的「%1」</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>因為你喜歡%1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>適合%1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>%1之選</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>甜美風</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>復古風</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>優雅風</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>極簡風</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>浪漫風</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>街頭風</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>哥德風</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>學院風</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>法式風</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>個性風</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>龐克風</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>嬌俏少女風</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>休閒風</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>波希米亞風</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>音樂祭風</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>經典風</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>運動風</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>時髦風</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>頹廢搖滾風</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>韓系風</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>日系風</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>新中式</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>老錢風</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>靜奢風</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>暗黑學院風</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>芭蕾風</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>田園風</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>性感風</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>可愛風</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>酷帥風</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>柔美風</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>中性風</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>工裝風</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>正裝風</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>華麗風</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>前衛風</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>機能風</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>西部風</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>度假風</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>千禧風</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>首頁</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>特價</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>收件匣</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>嘗試次數過多，請稍候再試。</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>登入已逾時，請重新登入。</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>請輸入電子郵件地址。</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>部分資料似乎有誤，請檢查後再試一次。</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET 目前有些狀況，請稍後再試。</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>沒有成功，請再試一次。</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>收到非預期的回應，請再試一次。</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>無法連上 LOOMSTREET，請再試一次。</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>應用程式缺少設定。</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>要求逾時，請再試一次。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>收件匣裡還有 %Ln 則通知。</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>系統通知</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>帳戶與服務的最新消息</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>訂單動態</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>訂單確認、出貨與送達</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>退款與退貨</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>退款完成與退貨進度</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>客服回覆</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>客服回覆你時</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>你等待的單品補貨時</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>收藏或看過的單品降價時</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Vessa 動態</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>按讚、留言、新追蹤者與訊息</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>等級異動、點數與新優惠券</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>優惠與活動</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>特賣、新品登場與商店活動</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>傳送了附件</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>訂單已成立</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>訂單已確認，幾分鐘後會出現在「訂單」中。</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>訂單 %1 已確認，幾分鐘後會出現在「訂單」中。</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET 無法自行更新</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>按一下視窗上方的「更新」，從磁碟映像檔安裝新版本。</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>通知預覽</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>新的訂單動態和客服回覆會出現在這裡。</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>衣櫥</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>你擁有的一切，集中在這裡</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>穿搭工作室</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>把單品組合起來，看看整體效果</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>造型集</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>你保存的穿搭</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>穿搭靈感</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>衣櫥裡的單品，穿出新變化</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>尺寸建議</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>從身材數據，找到合身的尺寸</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>以圖搜尋</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>用圖片找單品</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>比較</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>最多四件單品並排看</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在檢查更新…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>已是最新版本</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>正在下載 LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>正在檢查下載檔案…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>正在安裝 LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>無法檢查更新</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>無法下載更新</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>可以安裝了</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>安裝更新</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 可以安裝了</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 是最新版本。</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET 會關閉，並換成新版本。</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>下載完成。重新啟動即可完成，或於下次結束時安裝。</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>在剛開啟的視窗中，將 LOOMSTREET 拖到「應用程式」並選擇「取代」，然後重新開啟 LOOMSTREET。</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET 無法在這部電腦上自行替換。請改從磁碟映像檔安裝新版本，只需幾秒鐘。</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>你使用的版本已不再支援。</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>更新已下載。重新啟動 LOOMSTREET 即可完成，或於下次結束時安裝。</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>無法檢查更新，請檢查連線後再試一次。</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>下載失敗（HTTP %1）。</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>下載不完整或途中遭更動，請再試一次。</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>無法讀取下載的檔案。</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>下載的檔案沒有 LOOMSTREET 簽章，因此未開啟。</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>下載並安裝</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>重新啟動以更新</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>開啟磁碟映像檔</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>目前似乎沒有連線。</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira 太久沒有回應。</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>訊息傳得太快了，請稍等一下。</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>這則訊息無法照原樣傳送。</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET 目前有些狀況。</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>無法連上 LOOMSTREET。</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>請選擇尺寸：%1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>這段時間已售完，未加入：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>無法開始結帳，請檢查連線後再試一次。</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>身高或體重似乎有誤，請檢查數字與單位。</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>有一項數據似乎有誤，請檢查數字或留白。</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>寬鬆</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>合身</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>幫我搭配：%1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>這則訊息尚未確認送達，可以再試一次。</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>對話已是最新</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira 正在回覆</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira 正在回覆，稍後就能傳送。</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>話題儲存在這部電腦上。各話題共用的對話記憶由 Mira 保管。</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>幫我找單品</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>用我的衣櫥搭配</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>今晚穿什麼</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET 未獲授權取得你的位置，請改為輸入城市。</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>找不到你的位置，請改為輸入城市。</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>查不到這座城市，請試試附近較大的城市。</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira 現在無法接聽，請稍後再試。</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira 正在通話中，請一分鐘後再試。</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>剛才斷了一下，可以再說一次嗎？</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>通話中斷了。再打一次就能繼續聊。</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>麥克風權限已關閉。請到系統設定 › 隱私權與安全性 › 麥克風開啟，再打一次。</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>無法啟動麥克風。請確認已連接，再打一次。</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>通話時將麥克風靜音</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>已加入購物袋</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>已將%1加入購物袋</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>無法加入，請到商品頁面再試。</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>正在帶你過去…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>正在開啟%1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系統預設</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未連接</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>外套</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>上衣</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>下身</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>洋裝</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>鞋履</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>小物</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>溫和</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>晴天</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>晴時多雲</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>陰天</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>有霧</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>毛毛雨</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>雨天</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>下雪</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>陣雨</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>雷雨</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>這個檔案已經不在了。</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>無法讀取這個檔案。</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>這個檔案是空的。</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>這個檔案超過 10 MB，請選擇較小的檔案。</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>只能傳送圖片和 PDF 檔案。</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>這則訊息可能沒有送達。</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>已隱藏</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>配送中</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>已送達</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>傳訊息給客戶服務</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>與客戶服務的對話</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
</context>
</TS>
