<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>موقعك الحالي</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>فتح الصفحة كاملة</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>جارٍ الإرسال…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>عرض أقل</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>عرض الكل</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>مفتاح Enter للإرسال، وShift+Enter لسطر جديد</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>إزالة %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>الأقدم</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>العودة إلى السنة</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>الأحدث</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>موسّع</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>مطويّ</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>الانتقال إلى الأحدث</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>لا رسائل جديدة</numerusform>
            <numerusform>رسالة جديدة</numerusform>
            <numerusform>رسالتان جديدتان</numerusform>
            <numerusform>%Ln رسائل جديدة</numerusform>
            <numerusform>%Ln رسالة جديدة</numerusform>
            <numerusform>%Ln رسالة جديدة</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>يبدو أنه لا يوجد اتصال بالإنترنت. يُرجى التحقق من الاتصال وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>إخفاء كلمة المرور</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>إظهار كلمة المرور</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1، بدلًا من %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>نفدت الكمية</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>قيد المعالجة</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>إزالة من قائمة الأمنيات</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>حفظ في قائمة الأمنيات</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1، نفدت الكمية</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1، المقاس الموصى به لك</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>التقييم %L1 من 5، %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>التقييم %L1 من 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>تقليل</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>زيادة</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>حسابك</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>تسجيل الخروج</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>خزانتك في ذاكرتنا</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>كل ما هنا متاح للتصفّح والشراء بلا حساب. ومع الحساب يعرف المتجر أين وصلت شحناتك وأي القطع تهمّك.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>تسجيل الدخول</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>إنشاء حساب</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>طلباتك في مكان واحد</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>مكان كل شحنة، وإرجاع بلا بحث عن الإيصال</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>خبر في وقته</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>توفّر مقاسك من جديد، أو انخفض السعر</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>العضوية والقسائم</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>النقاط والفئات ومزاياها</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>إتمام شراء يعرفك</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>عنوانك جاهز مسبقًا</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>خدمة العملاء</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>الطلبات والمرتجعات والمقاسات</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>الطلبات</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>ما هو في الطريق، وما سبق شراؤه</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>تتبّع شحنة</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>برقمها أو برقم الطلب</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>المرتجعات</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>إرجاع قطعة</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>لك خصيصًا</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>قائمة الأمنيات</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>لا شيء محفوظ بعد</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>لا قطع</numerusform>
            <numerusform>قطعة واحدة</numerusform>
            <numerusform>قطعتان</numerusform>
            <numerusform>%Ln قطع</numerusform>
            <numerusform>%Ln قطعة</numerusform>
            <numerusform>%Ln قطعة</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>التنبيهات</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>ما توفّر من جديد، والأسعار الأقل</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>العضوية</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>فئتك ونقاطك</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>القسائم</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>لك عند إتمام الشراء</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>الحساب</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>بلا حساب</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>الملف الشخصي</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>الاسم وتاريخ الميلاد والنشرات البريدية</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>الخصوصية</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>ما يعرفه المتجر عنك</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>محفوظ على هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>حذف الحساب…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>سلسلة المفاتيح لا تستجيب</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>فيها تُحفظ بيانات دخولك بأمان، ولا يمكن تسجيل الدخول من دونها. يُرجى فتح قفلها ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>متوفّر من جديد</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>انخفاض السعر</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>عاد إلى المتجر</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>أقل سعرًا الآن</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 عند طلب التنبيه</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>إيقاف هذا التنبيه</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>لا تنبيهات</numerusform>
            <numerusform>تنبيه واحد</numerusform>
            <numerusform>تنبيهان</numerusform>
            <numerusform>%Ln تنبيهات</numerusform>
            <numerusform>%Ln تنبيهًا</numerusform>
            <numerusform>%Ln تنبيه</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>نراسلك على %1 عند توفّر القطعة من جديد أو انخفاض سعرها.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>لا تنبيهات بعد</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>إذا نفد مقاسك من قطعة، يفيدك زرّ «أبلغوني عند التوفّر». ولأي قطعة أخرى زرّ «أبلغوني عند انخفاض السعر».</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>وصل حديثًا</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>تسجيل الدخول لعرض تنبيهاتك</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>نخبرك عند توفّر القطعة بمقاسك من جديد أو انخفاض سعرها.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>لن نراسلك بشأنها.</numerusform>
            <numerusform>لن نراسلك بشأنه.</numerusform>
            <numerusform>لن نراسلك بشأنهما.</numerusform>
            <numerusform>لن نراسلك بشأنها.</numerusform>
            <numerusform>لن نراسلك بشأنها.</numerusform>
            <numerusform>لن نراسلك بشأنها.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1، لا قطع</numerusform>
            <numerusform>%1، قطعة واحدة</numerusform>
            <numerusform>%1، قطعتان</numerusform>
            <numerusform>%1، %Ln قطع</numerusform>
            <numerusform>%1، %Ln قطعة</numerusform>
            <numerusform>%1، %Ln قطعة</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>المصممون</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>لا مصممين</numerusform>
            <numerusform>مصمم واحد</numerusform>
            <numerusform>مصممان</numerusform>
            <numerusform>%Ln مصممين</numerusform>
            <numerusform>%Ln مصممًا</numerusform>
            <numerusform>%Ln مصمم</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>البحث عن مصمم</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>الحروف</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>مصممون آخرون</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>المصممون بحرف %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>لا مصممين يطابقون «%1»</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>يُرجى التحقق من الإملاء، أو تصفّح القائمة كلها.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>عرض كل المصممين</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>لا شيء هنا بعد</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>تصل قطع جديدة كل أسبوع.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>استكشاف</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>لا تقييمات</numerusform>
            <numerusform>تقييم واحد</numerusform>
            <numerusform>تقييمان</numerusform>
            <numerusform>%Ln تقييمات</numerusform>
            <numerusform>%Ln تقييمًا</numerusform>
            <numerusform>%Ln تقييم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>لم يُبع منها بعد</numerusform>
            <numerusform>بيعت قطعة واحدة</numerusform>
            <numerusform>بيعت قطعتان</numerusform>
            <numerusform>بيعت %Ln قطع</numerusform>
            <numerusform>بيعت %Ln قطعة</numerusform>
            <numerusform>بيعت %Ln قطعة</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>طلب مسبق</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>الأكثر اختيارًا: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>كيف أنسّق هذه القطعة؟</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>مقارنة</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>مع قطع محفوظة أو سبقت مشاهدتها</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>شحن مجاني إلى كل أنحاء العالم</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>للمشتريات بقيمة %1 أو أكثر</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>معلومات مفيدة</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>شامل رسوم الاستيراد</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>يُحتسب الشحن عند إتمام الشراء</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>سنراسلك عند التوفّر</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>أبلغوني عند التوفّر</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>تمت الإضافة</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>إضافة إلى الحقيبة</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>الضغط للإلغاء</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>جارٍ فتح صفحة الدفع…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>شراء الآن</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>مكالمة مع %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>فتح في نافذة</translation>
    </message>
    <message>
        <source>End</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>إنهاء المكالمة</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>عرض المكالمة</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>بدء مكالمة مع %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>معاودة الاتصال</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>الميكروفون يعمل</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>الميكروفون مكتوم</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>تفكّر</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>تتحدث</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>الصوت مكتوم</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>تستمع</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>انتهت المكالمة</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>إلغاء الكتم</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>رمز الخصم</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>تعذّر تحميل حقيبتك</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>قطعك بأمان. يُرجى التحقق من الاتصال وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>حقيبتك فارغة</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>القطع المضافة تظهر هنا.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>متابعة التسوّق</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>تمت إزالة %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>انتهت صلاحية حقيبتك السابقة. كانت فارغة.</numerusform>
            <numerusform>انتهت صلاحية حقيبتك السابقة. كانت فيها قطعة واحدة.</numerusform>
            <numerusform>انتهت صلاحية حقيبتك السابقة. كانت فيها قطعتان.</numerusform>
            <numerusform>انتهت صلاحية حقيبتك السابقة. كانت فيها %Ln قطع.</numerusform>
            <numerusform>انتهت صلاحية حقيبتك السابقة. كانت فيها %Ln قطعة.</numerusform>
            <numerusform>انتهت صلاحية حقيبتك السابقة. كانت فيها %Ln قطعة.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>الكمية: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>إزالة من الحقيبة</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>حقيبة التسوق</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>حقيبة التسوق</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>عرض كلوحة جانبية</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>المجموع الفرعي</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>الخصم</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>الإجمالي</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>شامل رسوم الاستيراد · يُحتسب الشحن عند إتمام الشراء</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>إتمام الشراء</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>يُستكمل الدفع في نافذة إتمام الشراء. تبقى حقيبتك كما هي.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>مجموعة</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>لا جديد في آخر 30 يومًا</numerusform>
            <numerusform>قطعة جديدة في آخر 30 يومًا</numerusform>
            <numerusform>قطعتان جديدتان في آخر 30 يومًا</numerusform>
            <numerusform>%Ln قطع جديدة في آخر 30 يومًا</numerusform>
            <numerusform>%Ln قطعة جديدة في آخر 30 يومًا</numerusform>
            <numerusform>%Ln قطعة جديدة في آخر 30 يومًا</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>هذه المجموعة غير متاحة</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>ربما تغيّر اسمها، أو أنها لا تُباع في هذا البلد: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>لا قطع تطابق هذه الفلاتر</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>لعرض المزيد، يمكن إزالة أحد الفلاتر.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>إكمال الإطلالة</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>قطع تتناسق معها</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>نالت الإعجاب أيضًا</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>ممّن شاهدوا هذه القطعة</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>قد يعجبك أيضًا</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>إضافة قطع للمقارنة</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>إضافة قطعة</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>من قائمة أمنياتك وممّا شاهدته</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>القطع المحفوظة أو التي شاهدتها يمكن إضافتها هنا.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>مقارنة مع %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>المقاسات</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>الخامة</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>إزالة من المقارنة</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>غير متاح في بلدك.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>غير مذكور</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>مقاسات %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>العودة إلى الأول</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>ما يرتديه الآخرون</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>جولة في المتجر</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>متابعاتي</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>أخبار مصمميك</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>اكتشاف الجديد</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>الخزانة</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>ماذا أرتدي اليوم؟</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>فتح الخزانة</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>طلباتك وتنبيهاتك</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>عضويتك</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>التعرّف إلى مزاياها</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>أين شحنتي؟</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>الطلب %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>عرض الطلب</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>انخفاض الأسعار</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>قطعك أقل سعرًا الآن</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>ما يعجبك محفوظ لك</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>لا قطع محفوظة</numerusform>
            <numerusform>قطعة محفوظة</numerusform>
            <numerusform>قطعتان محفوظتان</numerusform>
            <numerusform>%Ln قطع محفوظة</numerusform>
            <numerusform>%Ln قطعة محفوظة</numerusform>
            <numerusform>%Ln قطعة محفوظة</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>عرض قائمة الأمنيات</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>حذف حسابك؟</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>يُحذف ملفك الشخصي وتنبيهاتك وعضويتك وقائمة طلباتك نهائيًا. أما الطلبات التي في الطريق فستصلك. لا يمكن التراجع عن ذلك.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>للتأكيد، يُرجى كتابة بريدك الإلكتروني</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>حذف الحساب</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>المجموعات</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>الفلاتر</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>مسح كل الفلاتر</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>البحث ضمن: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>لا شيء بهذا الاسم</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>عرض أقل</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>عرض الكل (%Ln)</numerusform>
            <numerusform>عرض الكل (%Ln)</numerusform>
            <numerusform>عرض الكل (%Ln)</numerusform>
            <numerusform>عرض الكل (%Ln)</numerusform>
            <numerusform>عرض الكل (%Ln)</numerusform>
            <numerusform>عرض الكل (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>حتى</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>عرض القطع</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>لا قطع للعرض</numerusform>
            <numerusform>عرض قطعة واحدة</numerusform>
            <numerusform>عرض قطعتين</numerusform>
            <numerusform>عرض %Ln قطع</numerusform>
            <numerusform>عرض %Ln قطعة</numerusform>
            <numerusform>عرض %Ln قطعة</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>إغلاق الفلاتر</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>لم يُختر شيء، يمكن مقارنة %L1</numerusform>
            <numerusform>قطعة مختارة، يمكن مقارنة %L1</numerusform>
            <numerusform>قطعتان مختارتان، يمكن مقارنة %L1</numerusform>
            <numerusform>%Ln قطع مختارة، يمكن مقارنة %L1</numerusform>
            <numerusform>%Ln قطعة مختارة، يمكن مقارنة %L1</numerusform>
            <numerusform>%Ln قطعة مختارة، يمكن مقارنة %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>لم يُختر شيء</numerusform>
            <numerusform>قطعة مختارة</numerusform>
            <numerusform>قطعتان مختارتان</numerusform>
            <numerusform>%Ln قطع مختارة</numerusform>
            <numerusform>%Ln قطعة مختارة</numerusform>
            <numerusform>%Ln قطعة مختارة</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>من قطعتين إلى أربع قطع</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>تحديد</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>الأحدث أولًا</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>السعر: من الأقل إلى الأعلى</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>السعر: من الأعلى إلى الأقل</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>لا شيء للعرض</numerusform>
            <numerusform>شاهدت القطعة الوحيدة</numerusform>
            <numerusform>شاهدت القطعتين كلتيهما</numerusform>
            <numerusform>شاهدت القطع كلها (%Ln)</numerusform>
            <numerusform>شاهدت القطع كلها (%Ln)</numerusform>
            <numerusform>شاهدت القطع كلها (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>مجموعة: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>فتح %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>اختيار المقاس</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>المقاس</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>الموصى به لك: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>في حقيبتك</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>قطعة أخرى</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>استبعاد</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 من أصل %Ln</numerusform>
            <numerusform>%L1 من قطعة واحدة</numerusform>
            <numerusform>%L1 من قطعتين</numerusform>
            <numerusform>%L1 من %Ln قطع</numerusform>
            <numerusform>%L1 من %Ln قطعة</numerusform>
            <numerusform>%L1 من %Ln قطعة</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>بدلًا من %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>لا شيء مشابهًا في الوقت الحالي.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>اختيار Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>إطلالتك</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>يمكنك اختيار المقاسات، واستبدال ما لا يعجبك، واستبعاد ما لديك.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>سم</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>بوصة</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>قياساتك</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>تستنتج Mira مقاساتك منها. تُضاف القياسات إلى محادثتك، وتبقى نسخة منها على هذا الكمبيوتر حتى تسجيل الخروج.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الوحدة</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>متري</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>إمبراطوري</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>الطول (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>قدم</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>الوزن (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>كجم</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>رطل</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>الصدر (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>الخصر (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>الورك (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>إن لم تتوفر لديك، يمكن تركها فارغة.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>القَصّة المفضّلة</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>إرسال إلى Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>حذف من هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>تنسيق إطلالة معها</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>اختيار المقاس والإضافة إلى الحقيبة</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>رسالة إلى %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>إطلالة مع %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>قطعي · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>تنسيق مع قطعي</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>الطقس</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>عرض الإطلالة</numerusform>
            <numerusform>عرض الإطلالة: قطعة واحدة بمقاسك</numerusform>
            <numerusform>عرض الإطلالة: قطعتان، كل منهما بمقاسك</numerusform>
            <numerusform>عرض الإطلالة: %Ln قطع، كل منها بمقاسك</numerusform>
            <numerusform>عرض الإطلالة: %Ln قطعة، كل منها بمقاسك</numerusform>
            <numerusform>عرض الإطلالة: %Ln قطعة، كل منها بمقاسك</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>موضوع جديد</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>المواضيع…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>تنسيق مع قطعي…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>قياساتي…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>الطقس…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>عرض بجانب الصفحة</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>اقتراحات</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>إرسال: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>محادثة مع %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>إعادة التسمية</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>اسم الموضوع</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>حذف «%1»؟</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>إبقاء</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>المواضيع</translation>
    </message>
    <message>
        <source>You</source>
        <translation>أنت</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>إدخال قياساتي</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>تعتمد %1 على هذه القطع أولًا، ولا تضيف جديدًا إلا حيث ينقص شيء.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>لا قطع للتنسيق بعد</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>تظهر هنا قطع حقيبتك وقائمة أمنياتك.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>لم يُختر شيء، وهو الحد الأقصى</numerusform>
            <numerusform>قطعة مختارة، وهو الحد الأقصى</numerusform>
            <numerusform>قطعتان مختارتان، وهو الحد الأقصى</numerusform>
            <numerusform>%Ln قطع مختارة، وهو الحد الأقصى</numerusform>
            <numerusform>%Ln قطعة مختارة، وهو الحد الأقصى</numerusform>
            <numerusform>%Ln قطعة مختارة، وهو الحد الأقصى</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>في حقيبتك</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>في قائمة أمنياتك</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>في أي مدينة أنت؟ لتناسب الإطلالة طقس يومك.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>إطلالة تناسب الطقس</translation>
    </message>
    <message>
        <source>City</source>
        <translation>المدينة</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>تعيين</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>استخدام موقعي</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>ما مناسبة إطلالتك؟</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>مناسبة أو قطعة مفضّلة أو ميزانية: كلمة منك إلى %1، وهي تنسّق الإطلالة.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>تسجيل الدخول يعرض لك ما يخص طلباتك وتنبيهاتك.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>System</source>
        <translation>النظام</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>خدمة العملاء</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>الإشعارات</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>تسجيل الدخول لعرض إشعاراتك</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>لا جديد</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>هنا أخبار الطلبات التي في الطريق والقطع المتوفرة من جديد والأسعار الأقل.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>سيظهر هنا ما يخص طلباتك والقطع التي تهمّك.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>غير مقروء</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>تحديد الكل كمقروء</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>إعدادات الإشعارات</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>الوصول المتوقّع: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>الطلب</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>تاريخ الطلب: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>الشحنات</numerusform>
            <numerusform>الشحنة</numerusform>
            <numerusform>الشحنتان</numerusform>
            <numerusform>الشحنات</numerusform>
            <numerusform>الشحنات</numerusform>
            <numerusform>الشحنات</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>القطع</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>المرتجعات والمبالغ المستردة</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>هذا الطلب ليس هنا</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>يظهر طلبك الجديد هنا خلال بضع دقائق.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>ربما يخص حسابًا آخر.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>تسجيل الدخول لعرض هذا الطلب</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>يمكن تتبّع الشحنة برقمها بلا حساب.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>الكمية %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>مخفي</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>إعادة إظهار الطلب</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>إخفاء الطلب</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>نوع الطلبات</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>في الطريق</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>تم التسليم</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>كل طلباتك مخفية</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>لا شيء في الطريق</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>لم يُسلَّم شيء بعد</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>لا مرتجعات</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>بعضها مخفي.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>إظهار الطلبات المخفية</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>كل الطلبات</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>طلبك في الطريق إلى هذه الصفحة</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>لا طلبات بعد</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>تظهر هنا طلباتك، وأين وصلت في طريقها إليك.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>تسجيل الدخول لعرض طلباتك</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>أين وصلت، وما الذي فيها، وكيف يتم الإرجاع.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>أُخفي من طلباتك على هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>الخطوة %L1 من %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>الملخّص</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>عنوان التوصيل</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>بدء الإرجاع</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>الشحنة %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>هذا الرقم غير معروف بعد</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>قد يمر يوم قبل أن تظهر الشحنة الجديدة لدى شركة الشحن.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>فتح صفحة شركة الشحن</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>لم تصل من شركة الشحن أي معلومات بعد.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>مسار الشحنة</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>غير متاح مؤقتًا</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>هذه الميزة متوقفة حاليًا. يُرجى إعادة المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>إزالة من القائمة</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>هذه القطعة غير متاحة</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>ربما نفدت نهائيًا، أو أنها لا تُباع في هذا البلد: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>سنراسلك عند انخفاض السعر</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>أبلغوني عند انخفاض السعر</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>لم ينخفض سعر أي قطعة منذ شاهدتها</numerusform>
            <numerusform>انخفض سعر قطعة واحدة منذ شاهدتها</numerusform>
            <numerusform>انخفض سعر قطعتين منذ شاهدتهما</numerusform>
            <numerusform>انخفض سعر %Ln قطع منذ شاهدتها</numerusform>
            <numerusform>انخفض سعر %Ln قطعة منذ شاهدتها</numerusform>
            <numerusform>انخفض سعر %Ln قطعة منذ شاهدتها</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>لا شيء لمتابعة سعره بعد</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>لا انخفاض في الأسعار حاليًا</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>القطع المحفوظة أو التي شاهدتها تظهر هنا عند انخفاض سعرها.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>أسعار قطعك المحفوظة والمشاهَدة لم تتغير منذ شاهدتها، أو كانت بعملة أخرى.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>بيع نهائي</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>صورة %L1 من %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1، صورة %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>عرض الكل</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>لا يهمّني</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>في اليوم نفسه: %1</numerusform>
            <numerusform>بعد يوم: %1</numerusform>
            <numerusform>بعد يومين: %1</numerusform>
            <numerusform>بعد %Ln أيام: %1</numerusform>
            <numerusform>بعد %Ln يومًا: %1</numerusform>
            <numerusform>بعد %Ln يوم: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>ردّ المتجر: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>التقييمات</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>المزيد من التقييمات</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>أبرز المزايا</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>أسئلة وأجوبة</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>تاريخ الميلاد</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>اختيار تاريخ</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>العنوان المستخدم لتسجيل دخولك</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>البلد</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>تجاهل التغييرات</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>تم الحفظ</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>معنا منذ %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>النشرات البريدية</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>بالبريد الإلكتروني</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>قطع جديدة وعروض، إلى %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>برسالة نصية</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>يتطلب رقم هاتفك أعلاه</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>تسجيل الدخول لعرض ملفك الشخصي</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>اسمك ورقم هاتفك وما يمكننا إرساله إليك.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>اكتشاف</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>بعد جولة قصيرة في المتجر، تظهر هنا قطع تناسب ما شاهدته.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>شوهد مؤخرًا</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>مسح الكل</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>لا آثار تصفّح بعد</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>القطع التي شاهدتها تُجمع هنا لتسهل العودة إليها.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>بعد تسجيل الدخول، نراسلك فور التوفّر.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>تصل الرسالة إلى %1. ضغطة ثانية تلغي التنبيه.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>تصل الرسالة إلى %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>تكبير الصورة %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>لا نتائج لـ«%1»</numerusform>
            <numerusform>نتيجة واحدة لـ«%1»</numerusform>
            <numerusform>نتيجتان لـ«%1»</numerusform>
            <numerusform>%Ln نتائج لـ«%1»</numerusform>
            <numerusform>%Ln نتيجة لـ«%1»</numerusform>
            <numerusform>%Ln نتيجة لـ«%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>أي قطعة في بالك؟</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>لا نتائج لـ«%1»</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>قد يفيد التحقق من الإملاء، أو كلمة أعمّ، أو تصفّح «وصل حديثًا».</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>لا شيء يطابق هذه الفلاتر</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>لعرض المزيد من نتائج «%1»، يمكن إزالة فلتر أو اثنين</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>تسجيل الخروج؟</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>تبقى حقيبتك وقائمة أمنياتك على هذا الكمبيوتر. وتعود الطلبات والعضوية بعد تسجيل الدخول من جديد.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>جدول المقاسات</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>وحدة المقاسات</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>الترتيب: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>لا أدوات في الوقت الحالي.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>رقم الشحنة أو الطلب</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>مذكور في رسالة البريد الإلكتروني التي أعلمتك بالشحن.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>هذا الرقم غير معروف لدينا. يُرجى التحقق منه أو إعادة المحاولة غدًا: قد يمر يوم قبل ظهور الشحنة الجديدة.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>تتبّع</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>هذه الصفحة غير متاحة</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>ربما نُقلت، أو ستأتي مع إصدار آخر.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>ضغطة على القلب، وتنتظرك القطعة هنا. ونتابع سعرها أيضًا.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>حسابك: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>جارٍ البحث عن حسابك…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>لم يتم تسجيل الدخول</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>الطلبات والتنبيهات والعضوية تحتاج إلى حساب. أما التصفّح والشراء فلا.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>مثل سطح المكتب</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>يتبع سطح المكتب بين الفاتح والداكن</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>إطار نوافذ سطح المكتب</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>شريط عنوان فوق علامات التبويب، كما في النوافذ الأخرى</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>View</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>انتقال</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>نص المكالمة</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>يكفي ذكر القطعة المطلوبة أو المناسبة.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>إلغاء المكالمة</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>دردشة</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>المتابعة في الدردشة، للكتابة أيضًا</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>مكالمة مع %1، %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>مدة المكالمة: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>عرض في الدردشة</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>إغلاق والمتابعة في الدردشة</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>إنهاء المكالمة والإغلاق</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>الصورة فقط</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>عرض المكالمة مع %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>مكالمة مع %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>توسيع إلى صفحة كاملة</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>يمكن تتبّعه في أي وقت ضمن «الطلبات».</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>إعادة تحميل هذه الصفحة</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>دفع آمن عبر Shopify  ·  تبقى حقيبتك كما هي</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>في هذه الصفحة رابط يخرج من صفحة الدفع إلى %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>فتح في المتصفح</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>تعذّر عرض صفحة الدفع هنا</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>المتابعة في المتصفح</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>لم يتم إعداد LOOMSTREET</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>يُرجى تشغيل scripts/sync-secrets.sh في مجلد المشروع، ثم إعادة البناء.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>آثار التصفّح</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>البلد والعملة</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>لغة المتجر</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>فتح القطع بجانب المعروضات</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>في النوافذ العريضة تظهر القطعة بجانب مكان العثور عليها</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>وحدة المقاسات</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>سنتيمتر وكيلوجرام</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>بوصة ورطل</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>صفحة بلا عنوان</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>إيقاف عرض الصور مؤقتًا</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>تشغيل عرض الصور</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>مسافة</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>تعذّر تحميل هذه الصورة</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>البلد واللغة: %1، %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>البلد واللغة</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>بحث في اللغات</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>بحث في البلدان والعملات</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>اللغات</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>البلدان</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>لا لغة تطابق «%1»</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>لا بلد يطابق «%1»</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>في النافذة</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>شريط في أعلاها، لبضع ثوانٍ.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>على سطح المكتب</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>حيث يعرض سطح المكتب إشعارات التطبيقات، حتى إن لم تكن هناك نافذة مفتوحة.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>مع صوت</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>العدد على أيقونة التطبيق</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>عدد ما لم يُقرأ بعد.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>عرض مثال</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>أنواع الإشعارات</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>لن تُقترح عليك بعد الآن على هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>اللوحة الجانبية</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>فتح في علامة تبويب جديدة</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>إغلاق اللوحة الجانبية</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>اتساع اللوحة الجانبية</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>مساعدة المتجر في اختيار ما يعرضه</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>يعرف المتجر أي الصفحات والقطع تُشاهد وتُضاف إلى الحقيبة وتُشترى، ومتى توقّف التطبيق فجأة، من دون اسمك. وعند الإيقاف لا يُرسل إلا الضروري.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>في الحالتين</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>الضروري هو ما كان بطلب منك</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>الصفحات المفتوحة وعمليات بحثك وحقيبتك وطلباتك لا بد أن تصل إلى المتجر.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>ما حفظته يبقى على هذا الكمبيوتر</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>قائمة أمنياتك وما شاهدته وما بحثت عنه، إلى أن يُمسح.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>بيانات دخولك في سلسلة المفاتيح</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>وإن لم توجد، ففي ملف لا يقرؤه أحد سواك. تنتهي بعد 60 يومًا، وعند كل تسجيل خروج.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>تم حفظ لقطة الشاشة</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>تعذّر حفظ لقطة الشاشة</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>يُرجى التحقق من وجود مساحة في مجلد الصور.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>عرض المجلد</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>بحث، أو لصق رابط</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>البحث بصورة…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>الأقسام</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>المتابعة عبر %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>جارٍ تسجيل الدخول…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>يُفتح %1 في متصفحك. بعد تسجيل الدخول هناك يتم دخولك هنا أيضًا.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>نسخ العنوان</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>إن لم يُفتح المتصفح تلقائيًا</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>لم يحدث شيء هنا؟</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>لصق الرابط الذي انتهى إليه متصفحك</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>يبدأ بـ«wrenfieldstore://‎». تعرضه بعض المتصفحات في شريط العنوان.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>إتمام تسجيل الدخول</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>إنشاء حسابك</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>الدخول إلى حسابك</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>طرق تسجيل الدخول</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>رمز بالبريد</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>أرسلنا رمزًا إلى %1. قد يستغرق وصوله دقيقة.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>نرسل إلى بريدك رمزًا أولًا، للتأكد من أن العنوان لك.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>نرسل إلى بريدك رمزًا لتسجيل الدخول. لا حاجة إلى كلمة مرور.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>رمز التحقق</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>إعادة الإرسال بعد %L1 ث</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>إعادة الإرسال</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>إعادة إرسال الرمز</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>كلمة المرور (6 أحرف أو أكثر)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>الاسم (اختياري)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>نسيت كلمة المرور؟ يمكنك الدخول برمز بالبريد</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>إرسال رمز بالبريد</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>أو المتابعة عبر</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>الميكروفون</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>تجربة</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>إيقاف الاستماع إلى الميكروفون</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>تجربة الميكروفون</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>شدة الصوت</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>مستخدَم في المكالمة.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>كلمة منك، ويتبع الشريط صوتك. لا شيء يغادر هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>يُظهر مدى ارتفاع صوتك. لا شيء يغادر هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>مكبّر الصوت</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 لكتم الميكروفون من أي مكان، ما دامت المكالمة جارية.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>المفتاح M لكتم الميكروفون في نافذة المكالمة.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>رابط</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>البحث عن «%1»</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>الأخيرة</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>شوهد وحُفظ</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>لا قطع مقترحة. مفتاح Enter للبحث في القطع كلها.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>للاختيار</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>للإغلاق</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>إزالة «%1» من عمليات البحث الأخيرة</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>صورة: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>يُفتح في المتصفح</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>كتابة رسالة</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>إرفاق صورة أو ملف PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>صور وملفات PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>يمكن إفلات صورة أو ملف PDF هنا</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>كيف يمكننا مساعدتك؟</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>لأي سؤال عن طلب أو إرجاع أو مقاس. والصور تفيد أيضًا.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>أين طلبي؟</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>أودّ إرجاع قطعة</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>أي مقاس يناسبني؟</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>جارٍ التحميل</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>إغلاق %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>علامة تبويب جديدة بعدها</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>إلغاء تثبيت علامة التبويب</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>تثبيت علامة التبويب</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>نقل علامة التبويب إلى نافذة جديدة</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>إعادة فتح علامة التبويب المغلقة</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>إغلاق علامة التبويب</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>إغلاق علامات التبويب الأخرى</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>توسيع الشريط الجانبي</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>طي الشريط الجانبي</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>علامات التبويب</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>علامة تبويب جديدة</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>تقدّم</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>تمت الإزالة من: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>آخر تحقق: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>لم يتم التحقق بعد</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>لا يمكن لنسخة LOOMSTREET هذه تحديث نفسها.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>يبحث LOOMSTREET عن الإصدارات الجديدة تلقائيًا.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>لا يبحث LOOMSTREET حاليًا عن الإصدارات الجديدة تلقائيًا.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>تأتي الإصدارات الجديدة من مصدر تثبيتك. ويمكنك التحقق هنا أيضًا.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>عند التشغيل وكل ست ساعات. يُنزَّل ما يُعثر عليه في الخلفية ويُثبَّت عند إنهاء التطبيق؛ وإن تعذّر ذلك نخبرك.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>أوقفه المتجر مؤقتًا. ويمكنك التحقق هنا أيضًا.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>التحقق من التحديثات…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>ما الجديد</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>تخطّي هذا الإصدار</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>اتصال آمن مع %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>الاتصال غير آمن</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>تم حذف حسابك.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>تم تسجيل خروجك قبل حذف حسابك. لحذفه يُرجى تسجيل الدخول من جديد.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>الشحن</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>مجاني</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>الضرائب</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>لا شحنات</numerusform>
            <numerusform>شحنة واحدة</numerusform>
            <numerusform>شحنتان</numerusform>
            <numerusform>%Ln شحنات</numerusform>
            <numerusform>%Ln شحنة</numerusform>
            <numerusform>%Ln شحنة</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>مؤكد</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>تم التغليف</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>ملغى</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>قيد التنفيذ</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>بانتظار شركة الشحن</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>خرجت للتوصيل</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>مشكلة في التوصيل</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>طُلب الإرجاع</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>تمت الموافقة على الإرجاع</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>تم استرداد المبلغ</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>رُفض الإرجاع</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1</numerusform>
            <numerusform>%1 وقطعة أخرى</numerusform>
            <numerusform>%1 وقطعتان أخريان</numerusform>
            <numerusform>%1 و%Ln قطع أخرى</numerusform>
            <numerusform>%1 و%Ln قطعة أخرى</numerusform>
            <numerusform>%1 و%Ln قطعة أخرى</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>يجب تركه فارغًا.</numerusform>
            <numerusform>حرف واحد على الأكثر.</numerusform>
            <numerusform>حرفان على الأكثر.</numerusform>
            <numerusform>%Ln أحرف على الأكثر.</numerusform>
            <numerusform>%Ln حرفًا على الأكثر.</numerusform>
            <numerusform>%Ln حرف على الأكثر.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>يُرجى إدخال رقم هاتف، مثل %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>يُرجى إدخال تاريخ، مثل %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>يُرجى إدخال تاريخ في الماضي.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>لم يُقبل أحد المُدخلات. يُرجى التحقق منه وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>يُرجى إدخال بريد إلكتروني صحيح.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>هذا الرمز خاطئ أو انتهت صلاحيته. يُرجى طلب رمز جديد.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>محاولات كثيرة. يُرجى الانتظار دقيقة ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>البريد الإلكتروني وكلمة المرور غير متطابقين. يُرجى إعادة المحاولة أو تسجيل الدخول برمز بالبريد.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>طريقة تسجيل الدخول هذه غير متاحة بعد.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>لا بريد إلكترونيًا صالحًا لهذا الحساب. يُرجى تجربة طريقة أخرى.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>أُلغي تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>فشل تسجيل الدخول. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>يُرجى إدخال أرقام الرمز الستة.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>يُرجى اختيار كلمة مرور من 6 أحرف أو أكثر.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>يُرجى إدخال كلمة المرور. وهي من 6 أحرف أو أكثر.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>ليس هذا الرابط الذي انتهى به تسجيل دخولك. فهو يبدأ بـ«wrenfieldstore://‎».</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>مركز مساعدة LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>الاتفاقيات</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>نافذة جديدة</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>تثبيت علامة التبويب أو إلغاء تثبيتها</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>نقل علامة التبويب إلى الخلف</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>نقل علامة التبويب إلى الأمام</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>فتح منتج اللوحة الجانبية في صفحة كاملة</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>فتح منتج اللوحة الجانبية في علامة تبويب جديدة</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>التقاط صورة للشاشة</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>الانتقال إلى بداية القسم</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>علامة التبويب التالية</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>علامة التبويب السابقة</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>مختاراتنا</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>الأحدث</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>السعر: من الأقل إلى الأعلى</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>السعر: من الأعلى إلى الأقل</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>الأكثر مبيعًا</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>نساء</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>رجال</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>فاخر</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>حقائب</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>إكسسوارات</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>من %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>حتى %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>بيع نهائي</translation>
    </message>
    <message>
        <source>New</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>بقيت قطعة واحدة فقط</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>نفدت الكمية</numerusform>
            <numerusform>بقيت قطعة واحدة فقط</numerusform>
            <numerusform>بقيت قطعتان فقط</numerusform>
            <numerusform>بقيت %Ln قطع فقط</numerusform>
            <numerusform>بقيت %Ln قطعة فقط</numerusform>
            <numerusform>بقيت %Ln قطعة فقط</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>الأكثر تطابقًا</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>لا يمكن إرجاع هذه القطعة</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>يُرجى التأكد من المقاس واللون قبل الطلب</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>صُنع لك</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>لا يُرجع إلا إن وصل معيبًا</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>يُصنع حسب الطلب ويستغرق وقتًا أطول</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>خلال 30 يومًا، من دون استعمال، ومع كل مرفقاته</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>يُرجى الاحتفاظ بالعلبة والكيس الواقي والأوراق</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>خلال 30 يومًا، بنعل نظيف، وفي العلبة</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>يُفضّل قياسه في البيت أولًا</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>خلال 30 يومًا، من دون ارتداء، وبالبطاقات</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>يُرجى الاختيار أولًا: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>لا قطع في حقيبتك</numerusform>
            <numerusform>قطعة واحدة في حقيبتك</numerusform>
            <numerusform>قطعتان في حقيبتك</numerusform>
            <numerusform>%Ln قطع في حقيبتك</numerusform>
            <numerusform>%Ln قطعة في حقيبتك</numerusform>
            <numerusform>%Ln قطعة في حقيبتك</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>تعذّر تطبيق هذا الرمز. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>لا يسري «%1» على القطع التي في حقيبتك.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>حصلت على شحن مجاني إلى كل أنحاء العالم</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>بقي %1 لشحن مجاني إلى كل أنحاء العالم</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>تم تقديم الطلب. سيظهر ضمن «الطلبات» خلال بضع دقائق.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>تم تقديم الطلب %1. سيظهر ضمن «الطلبات» خلال بضع دقائق.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>لا قطع  ·  التأكيد أُرسل إلى بريدك</numerusform>
            <numerusform>قطعة واحدة  ·  التأكيد أُرسل إلى بريدك</numerusform>
            <numerusform>قطعتان  ·  التأكيد أُرسل إلى بريدك</numerusform>
            <numerusform>%Ln قطع  ·  التأكيد أُرسل إلى بريدك</numerusform>
            <numerusform>%Ln قطعة  ·  التأكيد أُرسل إلى بريدك</numerusform>
            <numerusform>%Ln قطعة  ·  التأكيد أُرسل إلى بريدك</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>استغرق تحميل الصفحة وقتًا طويلًا.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>تخرج هذه الصفحة من صفحة الدفع.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>توقفت الصفحة عن العمل.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>تعذّر بدء إتمام الشراء. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>أقل بمقدار %1 الآن</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>العمل</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>المواعيد الرومانسية</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>الحفلات</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>حفلات الزفاف</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>الإجازة</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>السفر</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>كل يوم</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>عطلة نهاية الأسبوع</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>المدرسة</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>مقابلات العمل</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>حفل التخرّج</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>المهرجانات</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>الشاطئ</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>السهرات</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>البرانش</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>النادي الرياضي</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>المناسبات الرسمية</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>وصل حديثًا</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>مستوحى من ذوقك</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>جديد هذا الأسبوع</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>جديد هذا الأسبوع</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>اختيار خاص</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>جديد هذا الأسبوع · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>مستوحى من ذوقك</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>يحبها من لهم ذوقك</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>بناءً على ما تصفّحته</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>الأكثر رواجًا الآن</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>تطابق بحثك: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>من وحي ذوقك: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>تناسب %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>بأسلوب %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>ناعم</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>فينتج</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>أنيق</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>مينيمال</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>رومانسي</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>ستريت</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>قوطي</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>بريبي</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>فرنسي</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>جريء</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>بانك</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>كوكيت</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>كاجوال</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>بوهو</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>المهرجانات</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>كلاسيكي</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>رياضي</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>شيك</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>غرانج</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>كوري</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>ياباني</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>صيني معاصر</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>أولد ماني</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>الفخامة الهادئة</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>دارك أكاديميا</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>باليه كور</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>كوتج كور</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>مثير</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>لطيف</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>كول</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>أنثوي</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>أندروجيني</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>ملابس العمل</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>رسمي</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>غلامور</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>طليعي</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>عملي</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>ويسترن</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>ريزورت</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>تخفيضات</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>صندوق الوارد</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>محاولات كثيرة. يُرجى الانتظار لحظة ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>انتهت جلستك. يُرجى تسجيل الدخول من جديد.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>يُرجى إدخال بريدك الإلكتروني.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>بعض البيانات لا تبدو صحيحة. يُرجى التحقق منها وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>يواجه LOOMSTREET مشكلة حاليًا. يُرجى إعادة المحاولة بعد قليل.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>لم ينجح ذلك. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>وصل رد غير متوقّع. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>تعذّر الوصول إلى LOOMSTREET. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>إعدادات التطبيق ناقصة.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>انتهت مهلة الاتصال. يُرجى إعادة المحاولة.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>لا إشعارات أخرى في صندوق الوارد.</numerusform>
            <numerusform>إشعار آخر بانتظارك في صندوق الوارد.</numerusform>
            <numerusform>إشعاران آخران بانتظارك في صندوق الوارد.</numerusform>
            <numerusform>%Ln إشعارات أخرى بانتظارك في صندوق الوارد.</numerusform>
            <numerusform>%Ln إشعارًا آخر بانتظارك في صندوق الوارد.</numerusform>
            <numerusform>%Ln إشعار آخر بانتظارك في صندوق الوارد.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>إشعارات النظام</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>مستجدات الحساب والخدمة</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>مستجدات الطلبات</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>تأكيد الطلب وشحنه وتسليمه</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>المبالغ المستردة والمرتجعات</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>ردّ المبالغ ومستجدات الإرجاع</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>ردود خدمة العملاء</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>عندما تردّ عليك خدمة العملاء</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>قطع طلبت التنبيه عنها متوفرة من جديد</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>انخفاض سعر قطع حفظتها أو شاهدتها</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>نشاط Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>الإعجابات والتعليقات والمتابعون الجدد والرسائل</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>تغيّر الفئة والنقاط والقسائم الجديدة</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>العروض والفعاليات</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>التخفيضات والإصدارات الجديدة وفعاليات المتجر</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>أُرسل مرفق</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>تم تقديم الطلب</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>تم تأكيد طلبك. سيظهر ضمن «الطلبات» خلال بضع دقائق.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>تم تأكيد الطلب %1. سيظهر ضمن «الطلبات» خلال بضع دقائق.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>تعذّر على LOOMSTREET تحديث نفسه</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>يُرجى النقر على «تحديث» أعلى النافذة لتثبيت الإصدار الجديد من صورة القرص.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>معاينة الإشعار</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>ستظهر هنا مستجدات الطلبات وردود خدمة العملاء.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>الخزانة</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>كل ملابسك في مكان واحد</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>استوديو الإطلالات</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>جمع القطع ورؤيتها معًا</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>لوك بوك</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>الإطلالات المحفوظة</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>أفكار إطلالات</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>طرق جديدة لارتداء ما في خزانتك</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>دليل مقاسك</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>قياساتك، والمقاس الذي يناسبها</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>البحث بصورة</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>العثور على قطعة من صورتها</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>مقارنة</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>حتى أربع قطع جنبًا إلى جنب</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>جارٍ التحقق من التحديثات…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>لديك أحدث إصدار</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>جارٍ تنزيل LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>جارٍ فحص التنزيل…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>جارٍ تثبيت LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>تعذّر التحقق من التحديثات</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>تعذّر تنزيل التحديث</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>جاهز للتثبيت</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>تثبيت التحديث</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 جاهز للتثبيت</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 هو أحدث إصدار.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>يُغلق LOOMSTREET، ويحل الإصدار الجديد محله.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>تم التنزيل. يكتمل التثبيت بإعادة التشغيل الآن، أو عند إنهاء التطبيق في المرة القادمة.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>في النافذة التي فُتحت، يُرجى سحب LOOMSTREET إلى «التطبيقات» واختيار «استبدال»، ثم فتح LOOMSTREET من جديد.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>تعذّر على LOOMSTREET استبدال نفسه على هذا الكمبيوتر. يُرجى تثبيت الإصدار الجديد من صورة القرص. لن يستغرق ذلك إلا ثوانٍ.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>الإصدار الذي لديك لم يعد مدعومًا.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>تم تنزيل التحديث. يكتمل التثبيت بإعادة تشغيل LOOMSTREET الآن، أو عند إنهائه في المرة القادمة.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>تعذّر التحقق من التحديثات. يُرجى التحقق من الاتصال وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>فشل التنزيل (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>التنزيل غير مكتمل أو تغيّر في الطريق. يُرجى إعادة المحاولة.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>تعذّرت قراءة الملف المنزَّل.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>التنزيل غير موقَّع من LOOMSTREET، لذلك لم يُفتح.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>تنزيل وتثبيت</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>إعادة التشغيل للتحديث</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>فتح صورة القرص</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>يبدو أنه لا يوجد اتصال بالإنترنت.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>تأخّر ردّ Mira كثيرًا.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>الرسائل تُرسل بسرعة كبيرة. يُرجى الانتظار لحظة.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>تعذّر إرسال هذه الرسالة بصيغتها الحالية.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>يواجه LOOMSTREET مشكلة حاليًا.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>تعذّر الوصول إلى LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>اختيار المقاسات: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>نفدت في هذه الأثناء ولم تُضف: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>تعذّر بدء إتمام الشراء. يُرجى التحقق من الاتصال وإعادة المحاولة.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>الطول أو الوزن لا يبدو صحيحًا. يُرجى التحقق من الأرقام والوحدات.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>أحد هذه القياسات لا يبدو صحيحًا. يُرجى التحقق من الرقم أو تركه فارغًا.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>واسع</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>ملائم للجسم</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>كيف أنسّق هذه القطعة: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>لم يتم تأكيد هذه الرسالة. يمكنك إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>المحادثة محدّثة</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira تكتب ردًا</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira تكتب ردًا. يمكنك إرسال هذه بعد لحظات.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>تُحفظ المواضيع على هذا الكمبيوتر. وتحتفظ Mira بذاكرة محادثاتكما المشتركة.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>المساعدة في العثور على قطعة</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>إطلالة من خزانتي</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>ماذا أرتدي الليلة؟</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °م</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>لا يُسمح لـ LOOMSTREET بمعرفة موقعك. يمكنك كتابة مدينتك بدلًا من ذلك.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>تعذّر تحديد موقعك. يمكنك كتابة مدينتك بدلًا من ذلك.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>هذه المدينة غير معروفة. يُرجى تجربة مدينة أكبر قريبة.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>لا تستطيع Mira الرد الآن. يُرجى إعادة المحاولة بعد لحظة.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira في مكالمة أخرى. يُرجى إعادة المحاولة بعد دقيقة.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>تقطّع الصوت قليلًا. هل يمكن تكرار ذلك؟</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>انقطع الخط. يُرجى معاودة الاتصال لمتابعة الحديث.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>الوصول إلى الميكروفون متوقف. يُرجى تفعيله من: إعدادات النظام › الخصوصية والأمن › الميكروفون، ثم معاودة الاتصال.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>تعذّر تشغيل الميكروفون. يُرجى التحقق من توصيله ثم معاودة الاتصال.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>كتم الميكروفون أثناء المكالمة</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>أُضيفت إلى حقيبتك</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>أُضيفت إلى حقيبتك: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>تعذّرت الإضافة. يمكن المحاولة من صفحة المنتج.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>إلى هناك حالًا…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>جارٍ فتح %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>افتراضي النظام</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>معاطف وجاكيتات</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>قطع علوية</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>قطع سفلية</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>فساتين</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>أحذية</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>إضافات</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>معتدل</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>مشمس</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>غائم جزئيًا</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>غائم</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>ضبابي</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>رذاذ</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>ممطر</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>مثلج</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>زخات مطر</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>عاصفة رعدية</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>لم يعد هذا الملف موجودًا.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>تعذّرت قراءة هذا الملف.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>هذا الملف فارغ.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>هذا الملف أكبر من 10 م.ب. يُرجى اختيار ملف أصغر.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>لا يمكن إرسال سوى الصور وملفات PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>ربما لم تصل هذه الرسالة.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>المخفية</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>في الطريق</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>تم تسليمها</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>رسالة إلى خدمة العملاء</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>محادثة مع خدمة العملاء</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
</TS>
