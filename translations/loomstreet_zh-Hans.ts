<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>当前位置</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>打开完整页面</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>发送中…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>收起</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>展开全部</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter 发送，Shift+Enter 换行</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
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
        <translation>更早</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>返回选择年份</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>往后</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>已展开</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>已收起</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>跳到最新消息</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln 条新消息</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>网络似乎已断开，请检查连接后重试。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>隐藏密码</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1，原价 %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>已售罄</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>处理中</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>从心愿单移除</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>加入心愿单</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1，已售罄</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1，为你推荐</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>评分 %L1（满分 5 分），%2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>评分 %L1（满分 5 分）</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>减少</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>增加</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>你的账户</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>退出登录</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>你的衣橱，替你记着</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>不注册账户，也能浏览和购买这里的一切。有了账户，包裹到哪儿了、你在等哪件单品，我们都替你留意。</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>创建账户</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>订单集中管理</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>随时查看包裹动态，退货不用翻找凭证</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>重要的事及时提醒</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>你的尺码到货了，或者价格降了</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>会员与优惠券</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>积分、等级与专属权益</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>结算更省心</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>地址已经为你填好</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>客户服务</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>订单、退货与尺码</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>订单</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>运送中的与买过的</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>查询包裹</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>凭包裹号或订单号</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>退货</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>寄回商品</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>为你推荐</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>心愿单</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>还没有收藏</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln 件单品</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>提醒</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>到货与降价</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>会员</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>你的等级与积分</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>优惠券</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>结算时可用</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>无需账户</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>个人资料</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>姓名、生日与资讯订阅</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>隐私</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>商店会了解到的信息</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>保存在这台电脑上</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>删除账户…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>密钥环没有响应</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>登录信息由密钥环保管，没有它便无法登录。请先解锁，然后重试。</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>到货</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>降价</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>又有货了</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>现已降价</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>设置提醒时 %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>取消此提醒</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln 条提醒</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>单品到货或降价时，我们会发邮件到 %1 通知你。</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>还没有提醒</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>你的尺码售罄时，点击“到货通知我”；其他单品可点击“降价通知我”。</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>新品</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>登录以查看提醒</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>你的尺码到货或价格下降时，我们会通知你。</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>不会再为此给你发邮件。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1，%Ln 件单品</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>设计师品牌</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln 个设计师品牌</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>查找设计师品牌</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>首字母</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>其他设计师品牌</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>%1 开头的设计师品牌</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>没有匹配“%1”的设计师品牌</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>请检查拼写，或浏览全部品牌。</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>查看全部设计师品牌</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>这里还没有内容</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>每周都有新品上架。</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>探索</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln 条评价</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>已售 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>预售</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>最多人选：%1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>帮我搭配</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>对比</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>与收藏或看过的单品放在一起看</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>全球免运费</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>购物袋满 %1 即享</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>购前须知</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>已含进口关税</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>运费结算时计算</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>到货后我们会发邮件通知你</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>到货通知我</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>已加入</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>加入购物袋</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>再按一次可取消</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>正在打开结算…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>立即购买</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>与%1通话</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>在窗口中打开</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>结束通话</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>显示通话</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>呼叫%1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>再次呼叫</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>麦克风已开启</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>麦克风已静音</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>呼叫中…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>思考中</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>讲话中</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>已静音</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>聆听中</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>通话已结束</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>取消静音</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>折扣码</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>无法加载购物袋</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>袋中商品都还在。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>购物袋是空的</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>加入的商品会显示在这里。</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>继续购物</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1已移除。</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>之前的购物袋已过期，其中有 %Ln 件商品。</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>放回</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>%1的数量</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>从购物袋移除</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>购物袋</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>购物袋</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>以侧边栏显示</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>小计</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>折扣</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合计</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>已含进口关税 · 运费结算时计算</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>结算</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>请在结算窗口完成付款。购物袋会保持原样。</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>暂不提供</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>系列</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>近 30 天上新 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>此系列暂不可用</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>它可能已改名，或不在%1销售</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>没有符合筛选条件的商品</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>减少筛选条件，查看更多商品。</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>完成整套造型</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>适合一起穿的单品</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>同样受欢迎</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>看过此单品的人还喜欢</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>你可能也喜欢</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>添加要对比的单品</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>添加单品</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>来自心愿单和浏览记录</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>先收藏或浏览一些单品，再添加到这里。</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>与%1对比</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>尺码</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>面料成分</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>移出对比</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>你所在的地区暂不供应。</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>未注明</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>%1的尺码</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>回到第一个</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>看看大家怎么穿</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>随便逛逛</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>关注</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>你关注的设计师品牌动态</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>看看新动态</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>衣橱</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>今天穿什么？</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>打开衣橱</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>你的订单与提醒</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>你的会员身份</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>查看会员权益</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>我的包裹到哪儿了？</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>订单 %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>查看订单</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>降价单品</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>你看中的单品降价了</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>留住心头好</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>已收藏 %Ln 件单品</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>查看心愿单</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>要删除账户吗？</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>你的个人资料、提醒、会员资格和订单列表将永久删除。运送中的订单仍会送达。此操作无法撤销。</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>输入你的邮箱地址以确认</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>删除账户</translation>
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
        <translation>筛选</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>清除全部筛选</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>在%1中查找</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>没有这个名称</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>收起</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>显示全部 %Ln 项</numerusform>
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
        <translation>查看单品</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>查看 %Ln 件单品</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>关闭筛选</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>已选 %Ln 件，最多可对比 %L1 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>已选 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>请选择 2 至 4 件单品</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>最新优先</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>价格从低到高</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>价格从高到低</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>%Ln 件已全部看完</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>系列：%1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>打开%1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>选择尺码</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺码</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>为你推荐：%1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>已在购物袋中</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>换一件</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>不要这件</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1/%Ln 件单品</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>替换%1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>暂时没有类似的单品。</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira 精选</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>你的造型</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>选好尺码，换掉不太喜欢的，去掉已经有的。</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>你的身材尺寸</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira 据此推算你的尺码。数据会写入你们的对话，并在这台电脑上保留一份，直到你退出登录。</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
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
        <translation>体重（%1）</translation>
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
        <translation>胸围（%1）</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>腰围（%1）</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>臀围（%1）</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>不清楚的话，留空就好。</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>偏好的版型</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>发送给 Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>从这台电脑删除</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>用它搭一套造型</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>选择尺码并加入购物袋</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>给%1发消息</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>围绕%1搭造型</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>我的单品 · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>用我的单品搭配</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天气</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>查看造型：%Ln 件单品，都是你的尺码</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>新话题</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>话题…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>用我的单品搭配…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>我的身材尺寸…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>天气…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>在页面旁显示</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>发送：%1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>与%1的对话</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>话题名称</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>要删除“%1”吗？</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>话题</translation>
    </message>
    <message>
        <source>You</source>
        <translation>你</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>填写我的身材尺寸</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1会优先使用这些单品，缺什么才添新的。</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>还没有可搭配的单品</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>购物袋和心愿单中的单品会显示在这里。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>已选 %Ln 件，已达上限</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>在购物袋中</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>在心愿单中</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>你在哪里？造型会配合当天的天气。</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>按天气为我搭配</translation>
    </message>
    <message>
        <source>City</source>
        <translation>城市</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>使用我的位置</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>这次要为什么场合打扮？</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>告诉%1场合、心仪的单品或预算，她来为你搭好。</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>登录后即可查看订单和提醒的相关通知。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>客户服务</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>登录以查看通知</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>没有新通知</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>订单动态、到货和降价消息都会出现在这里。</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>与你的订单和关注单品有关的消息会显示在这里。</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>未读</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>全部标为已读</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>通知设置</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>预计送达：%1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>订单</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>下单时间：%1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>包裹</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>单品</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>退货与退款</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>这里没有此订单</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>新订单几分钟后会显示在这里。</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>它可能属于另一个账户。</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>登录以查看此订单</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>凭包裹号即可查询，无需账户。</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>数量 %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>已隐藏</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>重新显示订单</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>隐藏订单</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>显示哪些订单</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>运送中</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>已送达</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>所有订单均已隐藏</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>没有运送中的订单</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>还没有已送达的订单</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>没有退货</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>部分订单已隐藏。</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>显示隐藏的订单</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>全部订单</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>你的订单即将显示在这里</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>还没有订单</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>你购买的商品及其运送进度会显示在这里。</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>登录以查看订单</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>查看订单进度、商品明细和退货方式。</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>已在这台电脑的订单列表中隐藏。</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>第 %L1 步，共 %L2 步：%3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>金额明细</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>收货地址</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>申请退货</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>包裹 %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>暂时查不到这个单号</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>新包裹可能需要一天才能在承运商处查到。</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>打开承运商页面</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>承运商暂未提供任何信息。</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>包裹动态</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>暂时不可用</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>此功能暂停使用，请稍后再试。</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>从列表移除</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>此单品暂不可用</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>它可能已售罄且不再补货，或不在%1销售。</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>降价后我们会发邮件通知你</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>降价通知我</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln 件单品比你看到时便宜了</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>还没有可关注价格的单品</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>目前没有降价</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>收藏或浏览过的单品一旦降价，就会显示在这里。</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>你收藏和看过的单品价格与当时相同，或当时以其他货币显示。</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>最终特卖</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>第 %L1 张图片，共 %L2 张</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1，图片 %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>查看全部</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>不感兴趣</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>%Ln 天后追评：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>商店回复：%1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>评价</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>更多评价</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>商品描述</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>亮点</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详情</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>问与答</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>电话</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>生日</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>选择日期</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>邮箱</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>你用来登录的邮箱地址</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>国家/地区</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>放弃更改</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>加入时间：%1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>资讯订阅</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>通过邮件</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>新品与优惠，发送至 %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>通过短信</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>需要先在上方填写电话号码</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>登录以查看个人资料</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>你的姓名、电话号码，以及希望收到哪些资讯。</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>去看看</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>随意逛逛，与之相配的单品就会出现在这里。</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>最近浏览</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>全部清除</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>还没有足迹</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>你看过的单品都收在这里，方便随时找回。</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>登录后，到货时我们会发邮件通知你。</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>邮件将发送到 %1。不再需要的话，再按一次即可。</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>邮件将发送到 %1。</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>放大图片 %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>“%1”的 %Ln 个结果</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>想找什么？</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>没有找到“%1”的结果</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>请检查拼写、换个更宽泛的词，或逛逛新品。</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>没有符合筛选条件的结果</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>减少一两个筛选条件，查看更多“%1”的结果</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>要退出登录吗？</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>购物袋和心愿单会留在这台电脑上。重新登录后，即可再次查看订单和会员信息。</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>尺码表</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>尺码单位</translation>
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
        <translation>目前没有可用的工具。</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>包裹号或订单号</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>可在发货通知邮件中找到。</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>我们查不到这个单号。请核对，或明天再试：新包裹可能需要一天才能查到。</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>查询</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>此页面不可用</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>它可能已移动，或属于其他版本。</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>点一下单品上的爱心，它就在这里等你。价格我们也帮你盯着。</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>你的账户：%1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>正在查找你的账户…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>尚未登录</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>查看订单、提醒和会员需要账户，浏览和购买则不需要。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>随桌面切换浅色和深色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>使用桌面的窗口边框</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>与其他窗口一样，在标签页上方显示标题栏</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>前往</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>通话字幕</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>说说你在找什么，或者要用在什么场合。</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>取消呼叫</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>聊天</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>转到聊天继续，也可以打字</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>与%1通话，%2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>通话时长：%1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>在聊天中显示</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>关闭并转到聊天继续</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>结束通话并关闭</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>仅显示画面</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>显示与%1的通话</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>与%1通话 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>展开为完整页面</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>可随时在“订单”中查看进度。</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>重新加载此页面</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Shopify 安全结算  ·  购物袋保持原样</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>此页面的链接将离开结算，前往 %1。</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>在浏览器中打开</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>无法在此显示结算页面</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>在浏览器中继续</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET 尚未配置</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>请在项目文件夹中运行 scripts/sync-secrets.sh，然后重新构建。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>足迹</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>国家/地区与货币</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>商店语言</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>在列表旁打开单品</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>窗口较宽时，单品显示在列表旁边</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>尺寸单位</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>厘米和公斤</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>英寸和磅</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>无标题页面</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>暂停幻灯片</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>播放幻灯片</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
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
        <translation>无法加载这张图片</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>地区和语言：%1，%2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>地区和语言</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>搜索语言</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>搜索国家/地区和货币</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>国家/地区</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>没有匹配“%1”的语言</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>没有匹配“%1”的国家/地区</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>在窗口中</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>在窗口顶部显示几秒钟的横幅。</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>在桌面上</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>显示在桌面的应用通知区，没有打开窗口时也能看到。</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>播放提示音</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>在应用图标上显示数量</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>未读通知的数量。</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>显示示例</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>通知内容</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>今后不会在这台电脑上推荐它。</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>侧边面板</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>在新标签页中打开</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>关闭侧边面板</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>侧边面板宽度</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>帮助商店选择展示内容</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>告知商店你浏览了哪些页面和单品、加入购物袋和购买了哪些单品，以及应用何时意外退出，不含你的姓名。关闭后，只发送必要信息。</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>无论开关与否</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>必要信息即你的请求</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>你打开的页面、搜索、购物袋和订单，必须传到商店。</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>你保留的内容只在这台电脑上</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>心愿单、浏览记录和搜索记录，直到你清除为止。</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>登录信息存放在密钥环中</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>没有密钥环时，则存放在只有你能读取的文件中。60 天后或退出登录时失效。</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>截图已保存</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>无法保存截图</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>请检查“图片”文件夹是否有足够空间。</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>搜索，或粘贴链接</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>以图搜索…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>栏目</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>使用 %1 继续</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>正在登录…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>浏览器会打开 %1。在那里登录后，这里也会随之登录。</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>复制网址</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>适用于没有自动打开的浏览器</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>这里没有反应？</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>粘贴浏览器最后显示的链接</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>它以“wrenfieldstore://”开头。有些浏览器会显示在地址栏中。</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>完成登录</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>创建你的账户</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>登录你的账户</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>登录方式</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>邮箱验证码</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>验证码已发送到 %1，可能需要一分钟送达。</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>我们会先通过邮件发送验证码，确认邮箱属于你。</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>我们会通过邮件发送登录验证码，无需密码。</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>验证码</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>%L1 秒后可重新发送</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>重新发送</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>重新发送验证码</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>密码（至少 6 个字符）</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>姓名（选填）</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>忘记密码？改用邮箱验证码登录</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>发送验证码到邮箱</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>或使用以下方式继续</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>试一试</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>停止测试麦克风</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>测试麦克风</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>通话正在使用麦克风。</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>说点什么：音量条会随你的声音变化。声音不会离开这台电脑。</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>显示你的音量大小。声音不会离开这台电脑。</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>扬声器</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>通话期间，在任何位置按 %1 都可将麦克风静音。</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>在通话窗口中按 M 可将麦克风静音。</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>搜索“%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近搜索</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>看过和收藏的</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>没有匹配的单品建议。按 Enter 搜索全部单品。</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>从最近搜索中移除“%1”</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>图片：%1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>在浏览器中打开</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>输入消息</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>添加图片或 PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>图片和 PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>将图片或 PDF 拖到这里</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>有什么可以帮你？</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>订单、退货或尺码问题都可以问，也可以发图片。</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>我的订单到哪儿了？</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>我想退货</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>我该选哪个尺码？</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>加载中</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>关闭%1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>在右侧新建标签页</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>取消固定标签页</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>固定标签页</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>将标签页移至新窗口</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>重新打开关闭的标签页</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>关闭标签页</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>关闭其他标签页</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>展开边栏</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>收起边栏</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>标签页</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>新建标签页</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>已从%1移除</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>上次检查：%1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>尚未检查</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>此 LOOMSTREET 无法自行更新。</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET 会自动检查新版本。</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET 目前不会自动检查新版本。</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>新版本由你获取它的渠道提供。你仍可在此检查。</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>启动时及每六小时检查一次。找到的新版本会在后台下载，并在退出时安装；无法安装时会通知你。</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>商店已暂停自动检查。你仍可在此检查。</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
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
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>关闭窗口</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>与 %1 的安全连接</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>连接不安全</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>你的账户已删除。</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>账户删除之前，你已退出登录。如需删除，请重新登录。</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>运费</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>免费</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>税费</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln 个包裹</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>已打包</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>处理中</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>等待承运商揽收</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>派送中</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>配送异常</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>已申请退货</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>退货已通过</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>已退款</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>退货未通过</translation>
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
            <numerusform>最多 %Ln 个字符。</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>请输入电话号码，例如 %1。</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>请输入日期，例如 %1。</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>请输入过去的日期。</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>部分内容未被接受，请检查后重试。</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>请输入有效的邮箱地址。</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>验证码有误或已过期，请重新获取。</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>尝试次数过多，请等一分钟再试。</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>邮箱与密码不匹配。请重试，或用邮箱验证码登录。</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>此登录方式暂不可用。</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>该账户没有我们可用的邮箱地址，请换一种方式。</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>登录已取消。</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>登录失败，请重试。</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>请输入六位验证码。</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>请设置至少 6 个字符的密码。</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>请输入密码，至少 6 个字符。</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>这不是登录完成时的链接。它以“wrenfieldstore://”开头。</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREET 帮助中心</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>协议与条款</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>新建窗口</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>固定或取消固定标签页</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>向左移动标签页</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>向右移动标签页</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>在完整页面中打开侧边面板的商品</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>在新标签页中打开侧边面板的商品</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>前往栏目首页</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>下一个标签页</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>上一个标签页</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>精选推荐</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>最新上架</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>价格从低到高</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>价格从高到低</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>销量最高</translation>
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
        <translation>女装</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>男装</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>奢侈品</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>包袋</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>配饰</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>%1 起</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>%1 以内</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>最终特卖</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新品</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>仅剩一件</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>仅剩 %Ln 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>最相关</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>此单品不支持退货</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>下单前请确认尺码和颜色</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>专为你定制</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>仅在收到瑕疵品时可退货</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>接单后制作，请多预留一些时间</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>30 天内，未使用，附件与包装齐全</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>请保留包装盒、防尘袋和卡证</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>30 天内，鞋底无痕，鞋盒完好</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>请先在室内试穿</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>30 天内，未穿着，吊牌完好</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>请先选择%1。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>购物袋中有 %Ln 件商品</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>无法使用此折扣码，请重试。</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1”不适用于购物袋中的商品。</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>你已享全球免运费</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>再买 %1 即享全球免运费</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>已下单。几分钟后会显示在“订单”中。</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>订单 %1 已提交。几分钟后会显示在“订单”中。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln 件单品  ·  确认邮件已发送</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>页面加载时间过长。</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>该页面将离开结算。</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>页面已停止响应。</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>无法开始结算，请重试。</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>现省 %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>上班</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>约会</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>派对</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>婚礼</translation>
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
        <translation>周末</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>上学</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>面试</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>毕业典礼</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>音乐节</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>海滩</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>夜晚聚会</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>早午餐</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>健身</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>正式场合</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>新品上架</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>猜你喜欢</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>本周上新</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>本周上新</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>精心挑选</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>本周上新 · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>猜你喜欢</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>与你品味相近的人也爱</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>根据你的浏览推荐</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>当下流行</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>符合你搜索的“%1”</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>因为你喜欢%1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>适合%1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>%1之选</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>甜美风</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>复古风</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>优雅风</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>极简风</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>浪漫风</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>街头风</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>哥特风</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>学院风</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>法式风</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>个性风</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>朋克风</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>娇俏少女风</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>休闲风</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>波西米亚风</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>音乐节风</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>经典风</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>运动风</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>时髦风</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>颓废摇滚风</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>韩系风</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>日系风</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>新中式</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>老钱风</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>静奢风</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>暗黑学院风</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>芭蕾风</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>田园风</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>性感风</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>可爱风</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>酷飒风</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>柔美风</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>中性风</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>工装风</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>正装风</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>华丽风</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>前卫风</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>机能风</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>西部风</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>度假风</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>千禧风</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>首页</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>特价</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>消息</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>尝试次数过多，请稍候再试。</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>登录状态已过期，请重新登录。</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>请输入邮箱地址。</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>部分信息似乎有误，请检查后重试。</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET 暂时出了点问题，请稍后再试。</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>没有成功，请重试。</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>收到了意外的响应，请重试。</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>无法连接 LOOMSTREET，请重试。</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>应用缺少配置。</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>请求超时，请重试。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>“消息”中还有 %Ln 条通知。</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>系统通知</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>账户与服务动态</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>订单动态</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>订单确认、发货与送达</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>退款与退货</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>退款到账与退货进度</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>客服回复</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>客服回复你时</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>你等待的单品重新有货</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>收藏或看过的单品降价</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Vessa 动态</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>点赞、评论、新粉丝和私信</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>等级变化、积分与新优惠券</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>优惠与活动</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>特卖、新品发布与商店活动</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>发送了一个附件</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>下单成功</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>你的订单已确认。几分钟后会显示在“订单”中。</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>订单 %1 已确认。几分钟后会显示在“订单”中。</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET 无法自行更新</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>点击窗口顶部的“更新”，从磁盘映像安装新版本。</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>通知预览</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>订单动态和客服回复会显示在这里。</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>衣橱</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>你拥有的一切，集中在一处</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>穿搭工作室</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>把单品组合起来，看整体效果</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>造型册</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>你保存的穿搭</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>穿搭灵感</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>衣橱里的单品，穿出新意</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>尺码建议</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>根据你的身材尺寸，找到合适的尺码</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>以图搜索</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>用图片找单品</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>对比</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>最多四件单品并排看</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>已是最新版本</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>正在下载 LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>正在校验下载文件…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>正在安装 LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>无法检查更新</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>无法下载更新</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>可以安装</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>安装更新</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 可以安装了</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 是最新版本。</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET 将关闭，并换成新版本。</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>已下载。重新启动即可完成，或在下次退出时安装。</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>在刚打开的窗口中，将 LOOMSTREET 拖到“应用程序”，并选择“替换”。然后重新打开 LOOMSTREET。</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET 无法在这台电脑上自行替换。请改从磁盘映像安装新版本，只需几秒钟。</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>你使用的版本已不再受支持。</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>更新已下载。重新启动 LOOMSTREET 即可完成，或在下次退出时安装。</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>无法检查更新，请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>下载失败（HTTP %1）。</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>下载不完整或中途被更改，请重试。</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>无法读取下载的文件。</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>下载文件没有 LOOMSTREET 的签名，因此未打开。</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>下载并安装</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>重启以更新</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>打开磁盘映像</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>网络似乎已断开。</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira 太久没有回应。</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>消息发得太快了，请稍等一下。</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>这条消息无法按原样发送。</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET 暂时出了点问题。</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>无法连接 LOOMSTREET。</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>请选择尺码：%1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>其间已售罄，未加入：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>无法开始结算，请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>身高或体重似乎不对，请检查数字和单位。</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>有一项尺寸似乎不对，请检查数字或留空。</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>宽松</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>修身</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>帮我搭配：%1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>这条消息尚未确认送达，可以重试。</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>对话已是最新</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira 正在回复</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira 正在回复，稍后即可发送。</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>话题保存在这台电脑上。各话题共用的对话记忆由 Mira 保管。</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>帮我找单品</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>用我的衣橱搭配</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>今晚穿什么</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET 无权获取你的位置，请输入城市。</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>找不到你的位置，请输入城市。</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>查不到这个城市，请试试附近更大的城市。</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira 现在无法接听，请稍后再试。</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira 正在通话中，请一分钟后再试。</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>刚才线路卡了一下，能再说一遍吗？</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>通话中断了。再次呼叫即可继续。</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>麦克风权限已关闭。请前往系统设置 › 隐私与安全性 › 麦克风开启，然后再次呼叫。</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>无法启动麦克风。请检查是否已连接，然后再次呼叫。</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>通话时将麦克风静音</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>已加入购物袋</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>已将%1加入购物袋</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>无法加入，请在商品页重试。</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>正在带你前往…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>正在打开%1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>外套</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>上装</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>下装</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>连衣裙</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>鞋履</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>其他小物</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>温和</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>晴</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>晴间多云</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>阴</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>雾</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>毛毛雨</translation>
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
        <translation>阵雨</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>雷暴</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>此文件已不存在。</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>无法读取此文件。</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>此文件是空的。</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>此文件超过 10 MB，请选择更小的文件。</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>只能发送图片和 PDF 文件。</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>这条消息可能没有送达。</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>已隐藏</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>运送中</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>已送达</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>给客户服务发消息</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>与客户服务的对话</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
