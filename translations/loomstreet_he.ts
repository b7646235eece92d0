<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>המיקום הנוכחי</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>פתיחת הדף המלא</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>שולחים…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>להציג פחות</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>להציג הכול</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter שולח, Shift+Enter פותח שורה חדשה</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>שליחה</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>ניסיון נוסף</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>הסרת %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>מוקדם יותר</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>חזרה לשנה</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>מאוחר יותר</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>מורחב</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>מכווץ</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>מעבר לאחרונות</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>הודעה חדשה אחת</numerusform>
            <numerusform>%Ln הודעות חדשות</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>נראה שאין חיבור לאינטרנט. כדאי לבדוק את החיבור ולנסות שוב.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>הסתרת הסיסמה</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>הצגת הסיסמה</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, במקום %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>אזל מהמלאי</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>בפעולה</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>הסרה מרשימת המשאלות</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>שמירה ברשימת המשאלות</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>חיפוש</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>הקודם</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>הבא</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, אזל מהמלאי</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, מומלץ עבורך</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>דירוג %L1 מתוך 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>דירוג %L1 מתוך 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>פחות</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>יותר</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>ביטול הפעולה</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>החשבון שלך</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>התנתקות</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>הארון שלך שמור אצלנו</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>אפשר לראות ולקנות כאן הכול גם בלי חשבון. עם חשבון, החנות יודעת איפה החבילות שלך ועל אילו פריטים לעדכן אותך.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>התחברות</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>פתיחת חשבון</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>כל ההזמנות במקום אחד</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>איפה כל חבילה, והחזרות בלי לחפש קבלה</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>עדכון כשזה חשוב</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>המידה שלך חזרה, או שהמחיר ירד</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>מועדון וקופונים</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>נקודות, דרגות ומה שהן פותחות</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>תשלום שכבר מכיר אותך</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>הכתובת שלך כבר שם</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>שירות לקוחות</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>הזמנות, החזרות ומידות</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>הזמנות</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>מה שבדרך, ומה שכבר נקנה</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>מעקב אחר חבילה</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>לפי המספר שלה או של ההזמנה</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>החזרות</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>להחזיר פריט</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>בשבילך</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>רשימת המשאלות</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>עדיין לא נשמר דבר</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>פריט אחד</numerusform>
            <numerusform>%Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>התראות</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>חזרה למלאי ומחירים נמוכים יותר</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>מועדון הלקוחות</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>הדרגה והנקודות שלך</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>קופונים</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>לשימושך בתשלום</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>חשבון</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>בלי חשבון</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>פרופיל</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>שם, יום הולדת ודיוור</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>פרטיות</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>מה החנות לומדת עליך</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>נשמר במחשב הזה</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>מחיקת החשבון…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>מחזיק המפתחות לא מגיב</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>הוא שומר על פרטי ההתחברות שלך, ובלעדיו אי אפשר להתחבר. צריך לפתוח את הנעילה שלו ולנסות שוב.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>חזר למלאי</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>ירידת מחיר</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>שוב במלאי</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>עכשיו בפחות</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 בעת הבקשה</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>הפסקת ההתראה</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>התראה אחת</numerusform>
            <numerusform>%Ln התראות</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>נשלח מייל אל %1 כשפריט חוזר או כשהמחיר יורד.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>עדיין אין התראות</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>בפריט שאזל במידה שלך, לוחצים על ״לעדכן אותי כשזה חוזר״. בכל פריט אחר, על ״לעדכן אותי על ירידת מחיר״.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>חדש באתר</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>התחברות להצגת ההתראות שלך</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>נעדכן אותך כשפריט חוזר במידה שלך, או עולה פחות.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>לא נשלח על כך מיילים.</numerusform>
            <numerusform>לא נשלח עליהן מיילים.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, פריט אחד</numerusform>
            <numerusform>%1, %Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>מעצבים</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>מעצב אחד</numerusform>
            <numerusform>%Ln מעצבים</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>חיפוש מעצבים</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>ניקוי</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>אותיות</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>מעצבים נוספים</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>מעצבים באות %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>אין מעצבים שמתאימים ל״%1״</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>כדאי לבדוק את האיות, או לעיין ברשימה כולה.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>להציג את כל המעצבים</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>עדיין אין כאן דבר</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>פריטים חדשים מגיעים בכל שבוע.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>לגלות</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>חוות דעת אחת</numerusform>
            <numerusform>%Ln חוות דעת</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>אחד נמכר</numerusform>
            <numerusform>%Ln נמכרו</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>מכירה מוקדמת</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>הבחירה הנפוצה: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>איך ללבוש את זה?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>השוואה</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>לצד פריטים ששמרת או ראית</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>משלוח חינם לכל העולם</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>בקנייה של %1 ומעלה</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>כדאי לדעת</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>כולל מסי יבוא</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>המשלוח מחושב בשלב התשלום</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>נשלח לך מייל כשזה חוזר</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>לעדכן אותי כשזה חוזר</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>נוסף</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>הוספה לסל</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>לחיצה מבטלת</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>פותחים את התשלום…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>לקנייה עכשיו</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>שיחה עם %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>פתיחה בחלון</translation>
    </message>
    <message>
        <source>End</source>
        <translation>סיום</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>סיום השיחה</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>הצגת השיחה</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>שיחה אל %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>להתקשר שוב</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>המיקרופון פועל</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>המיקרופון מושתק</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>מתקשרים…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>חושבת</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>מדברת</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>מושתק</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>מקשיבה</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>השיחה הסתיימה</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>ביטול השתקה</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>השתקה</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>קוד הנחה</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>מימוש</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>לא הצלחנו לטעון את הסל</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>הפריטים שלך שמורים. כדאי לבדוק את החיבור ולנסות שוב.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>הסל שלך ריק</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>פריטים שנוספו לסל יופיעו כאן.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>להמשך קניות</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>%1 – הוסר מהסל.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>תוקף הסל הקודם שלך פג. היה בו פריט אחד.</numerusform>
            <numerusform>תוקף הסל הקודם שלך פג. היו בו %Ln פריטים.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>החזרה למקום</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>כמות: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>הסרה מהסל</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>סגירת ההודעה</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>סל הקניות</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>סל הקניות</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>הצגה כחלונית צד</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>סכום ביניים</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>הנחה</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>סה״כ</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>כולל מסי יבוא · המשלוח מחושב בשלב התשלום</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>לתשלום</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>את התשלום משלימים בחלון התשלום. הסל שלך נשאר כמו שהוא.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>לא זמין</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>קולקציה</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>פריט חדש אחד ב־30 הימים האחרונים</numerusform>
            <numerusform>%Ln פריטים חדשים ב־30 הימים האחרונים</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>הקולקציה הזו לא זמינה</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>ייתכן ששמה השתנה, או שאינה נמכרת במדינה: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>אין פריטים שמתאימים לסינון</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>הסרת מסנן תציג עוד פריטים.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>להשלמת הלוק</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>פריטים ללבוש יחד</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>אהבו גם</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>מי שהסתכלו על הפריט הזה</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>אולי יעניין אותך גם</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>הוספת פריטים להשוואה</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>הוספת פריט</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>מרשימת המשאלות ומהפריטים שראית</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>פריטים ששמרת או ראית אפשר להוסיף כאן.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>השוואה עם %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>מידות</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>הרכב הבד</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>הסרה מההשוואה</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>לא זמין במדינה שלך.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>לא צוין</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>המידות של %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>חזרה להתחלה</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>מה אחרים לובשים</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>הצצה פנימה</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>במעקב</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>חדשות מהמעצבים שלך</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>לראות מה חדש</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>הארון</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>מה ללבוש היום?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>לפתוח את הארון</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>ההזמנות וההתראות שלך</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>החברות שלך במועדון</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>לראות מה מקבלים</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>איפה החבילה שלי?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>הזמנה %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>להצגת ההזמנה</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>ירידות מחיר</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>הפריטים שלך עולים עכשיו פחות</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>לשמור את מה שאוהבים</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>פריט אחד נשמר</numerusform>
            <numerusform>%Ln פריטים נשמרו</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>לרשימת המשאלות</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>למחוק את החשבון?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>הפרופיל, ההתראות, החברות במועדון ורשימת ההזמנות שלך יימחקו לתמיד. הזמנות שבדרך עדיין יגיעו. אי אפשר לבטל את הפעולה.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>לאישור, יש להקליד את כתובת המייל שלך</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>מחיקת החשבון</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>קולקציות</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>סינון</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>ניקוי כל המסננים</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>חיפוש בתוך: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>אין דבר בשם הזה</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>להציג פחות</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>להציג הכול (%Ln)</numerusform>
            <numerusform>להציג הכול (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>מחיר מינימום</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>מחיר מקסימום</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>הצגת הפריטים</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>הצגת פריט אחד</numerusform>
            <numerusform>הצגת %Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>סגירת הסינון</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>אחד נבחר, אפשר להשוות %L1</numerusform>
            <numerusform>%Ln נבחרו, אפשר להשוות %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>אחד נבחר</numerusform>
            <numerusform>%Ln נבחרו</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>יש לבחור שניים עד ארבעה פריטים</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>סיום</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>בחירה</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>מהחדש לישן</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>מחיר: מהנמוך לגבוה</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>מחיר: מהגבוה לנמוך</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>ראית את הפריט היחיד</numerusform>
            <numerusform>ראית את כל הפריטים (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>קולקציה: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>פתיחת %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>בחירת מידה</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>מידה</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>מומלץ עבורך: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>כבר בסל</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>פריט אחר</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>בלי זה</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 מתוך פריט אחד</numerusform>
            <numerusform>%L1 מתוך %Ln פריטים</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>במקום %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>אין כרגע משהו דומה.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>הבחירה של Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>הלוק שלך</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>אפשר לבחור מידות, להחליף את מה שפחות אהבת ולוותר על מה שכבר יש לך.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>ס״מ</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>אינץ׳</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>המידות שלך</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>מהן Mira מחשבת את המידה שלך. הן נכנסות לשיחה, ועותק נשאר במחשב הזה עד להתנתקות.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>יחידה</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>מטרי</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>אימפריאלי</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>גובה (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>רגל</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>משקל (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>ק״ג</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>ליברה</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>חזה (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>מותן (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>ירך (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>מה שלא ידוע לך אפשר להשאיר ריק.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>גזרה מועדפת</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>שליחה אל Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>מחיקה מהמחשב הזה</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>לבנות סביבו לוק</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>בחירת מידה והוספה לסל</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>לכתוב אל %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>לוק סביב %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>הפריטים שלי · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>סטיילינג עם הפריטים שלי</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>מזג אוויר</translation>
    </message>
    <message>
        <source>More</source>
        <translation>עוד</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>להצגת הלוק: פריט אחד, במידה שלך</numerusform>
            <numerusform>להצגת הלוק: %Ln פריטים, כולם במידה שלך</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>נושא חדש</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>נושאים…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>רענון</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>סטיילינג עם הפריטים שלי…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>המידות שלי…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>מזג אוויר…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>הצגה לצד הדף</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>הצעות</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>לשלוח: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>שיחה עם %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>שינוי שם</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>מחיקה</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>שם הנושא</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>למחוק את ״%1״?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>להשאיר</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>נושאים</translation>
    </message>
    <message>
        <source>You</source>
        <translation>ממך</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>הזנת המידות שלי</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 משתמשת קודם באלה, ומוסיפה משהו חדש רק היכן שחסר.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>עדיין אין פריטים לסטיילינג</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>הפריטים מהסל ומרשימת המשאלות שלך מופיעים כאן.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>אחד נבחר, זה המקסימום</numerusform>
            <numerusform>%Ln נבחרו, זה המקסימום</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>בסל שלך</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>ברשימת המשאלות שלך</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>באיזו עיר? נתאים את הלוק למזג האוויר.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>לוק לפי מזג האוויר</translation>
    </message>
    <message>
        <source>City</source>
        <translation>עיר</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>לפי המיקום שלי</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>לאן מתלבשים?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>מספרים לה על אירוע, פריט אהוב או תקציב, ו־%1 מרכיבה את הלוק.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>מתחברים כדי לראות עדכונים על ההזמנות וההתראות שלך.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>להציג</translation>
    </message>
    <message>
        <source>All</source>
        <translation>הכול</translation>
    </message>
    <message>
        <source>System</source>
        <translation>מערכת</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>שירות לקוחות</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>עדכונים</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>התחברות להצגת העדכונים שלך</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>אין חדש</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>כאן יופיעו הזמנות שבדרך, פריטים שחזרו למלאי ומחירים שירדו.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>כאן יופיע כל מה שנוגע להזמנות שלך ולפריטים שבמעקב.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>לא נקרא</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>לסמן הכול כנקרא</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>הגדרות עדכונים</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>צפי הגעה: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>הזמנה</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>הוזמן בתאריך %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>חבילה</numerusform>
            <numerusform>חבילות</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>פריטים</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>החזרות והחזרים כספיים</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>ההזמנה הזו לא כאן</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>ההזמנה החדשה תופיע כאן בתוך כמה דקות.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>ייתכן שהיא שייכת לחשבון אחר.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>התחברות להצגת ההזמנה</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>אפשר לעקוב אחר חבילה לפי המספר שלה, גם בלי חשבון.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>כמות %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>מוסתרת</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>להציג שוב את ההזמנה</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>הסתרת ההזמנה</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>אילו הזמנות</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>בדרך</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>נמסר</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>כל ההזמנות שלך מוסתרות</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>אין דבר בדרך</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>עדיין לא נמסר דבר</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>אין החזרות</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>חלק מהן מוסתרות.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>הצגת ההזמנות המוסתרות</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>כל ההזמנות</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>ההזמנה שלך בדרך לדף הזה</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>עדיין אין הזמנות</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>ההזמנות שלך יופיעו כאן, עם המקום שבו הן נמצאות בדרך אליך.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>התחברות להצגת ההזמנות שלך</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>איפה הן, מה יש בהן ואיך מחזירים פריט.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>הוסתרה מרשימת ההזמנות שלך במחשב הזה.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>שלב %L1 מתוך %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>סיכום</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>כתובת למשלוח</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>התחלת החזרה</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>חבילה %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>המספר הזה עדיין לא מוכר</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>לפעמים לוקח יום עד שחבילה חדשה מוכרת לחברת המשלוחים.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>לאתר חברת המשלוחים</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>עדיין אין מידע מחברת המשלוחים.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>מסלול החבילה</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>לא זמין זמנית</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>האפשרות הזו מושהית כרגע. כדאי לנסות שוב מאוחר יותר.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>הסרה מהרשימה</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>הפריט הזה לא זמין</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>ייתכן שאזל לתמיד, או שאינו נמכר במדינה: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>נשלח לך מייל כשזה יעלה פחות</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>לעדכן אותי על ירידת מחיר</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>פריט אחד הוזל מאז שראית אותו</numerusform>
            <numerusform>%Ln פריטים הוזלו מאז שראית אותם</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>עדיין אין אחרי מה לעקוב</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>אין כרגע ירידות מחיר</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>פריטים ששמרת או ראית יופיעו כאן כשמחירם ירד.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>מחירי הפריטים ששמרת או ראית לא השתנו מאז, או שהוצגו אז במטבע אחר.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>מכירה סופית</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>תמונות</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>תמונה %L1 מתוך %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, תמונה %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>להציג הכול</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>לא מעניין אותי</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>אחרי יום: %1</numerusform>
            <numerusform>אחרי %Ln ימים: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>תשובת החנות: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>חוות דעת</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>עוד חוות דעת</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>תיאור</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>נקודות בולטות</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>פרטים</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>שאלות ותשובות</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>טלפון</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>יום הולדת</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>בחירת תאריך</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>מייל</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>הכתובת שמשמשת להתחברות</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>מדינה</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>שמירה</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>ביטול השינויים</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>נשמר</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>אצלנו מאז %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>דיוור</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>במייל</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>פריטים חדשים והצעות, אל %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>ב־SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>דורש את מספר הטלפון שלך למעלה</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>התחברות להצגת הפרופיל שלך</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>השם שלך, הטלפון ומה מותר לנו לשלוח לך.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>לגלות עוד</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>אחרי סיבוב קצר בחנות יופיע כאן מה שמתאים.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>נצפו לאחרונה</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>לנקות הכול</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>עדיין אין פריטים שנצפו</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>הפריטים שראית נאספים כאן, כדי שיהיה קל לחזור אליהם.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>אחרי התחברות נשלח לך מייל ברגע שזה חוזר.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>המייל יישלח אל %1. לחיצה נוספת תבטל.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>המייל יישלח אל %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>הגדלת תמונה %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>תוצאה אחת עבור ״%1״</numerusform>
            <numerusform>%Ln תוצאות עבור ״%1״</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>מה מחפשים היום?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>אין תוצאות עבור ״%1״</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>אפשר לבדוק את האיות, לנסות מילה רחבה יותר או לעיין ב״חדש באתר״.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>אין דבר שמתאים לסינון</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>הסרת מסנן או שניים תציג עוד תוצאות עבור ״%1״</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>להתנתק?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>הסל ורשימת המשאלות נשארים במחשב הזה. ההזמנות והמועדון יהיו זמינים שוב אחרי התחברות.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>טבלת מידות</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>יחידת המידות</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>מיון: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>כלים</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>אין כרגע כלים.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>מספר חבילה או הזמנה</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>הוא מופיע במייל שהודיע לך על המשלוח.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>המספר הזה לא מוכר לנו. כדאי לבדוק אותו או לנסות שוב מחר: לפעמים לוקח יום עד שחבילה חדשה מוכרת.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>מעקב</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>הדף הזה לא זמין</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>ייתכן שעבר למקום אחר, או שיגיע בגרסה אחרת.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>לוחצים על הלב שליד הפריט והוא מחכה לך כאן. גם על המחיר אנחנו שומרים עין.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>החשבון שלך: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>מחפשים את החשבון שלך…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>אין חשבון מחובר</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>להזמנות, להתראות ולמועדון צריך חשבון. לעיון ולקנייה לא.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>מראה</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>צבעים</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>כמו שולחן העבודה</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>עובר בין בהיר לכהה עם שולחן העבודה</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>בהיר</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>כהה</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>מסגרת החלון של שולחן העבודה</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>שורת כותרת מעל הכרטיסיות, כמו בחלונות אחרים</translation>
    </message>
    <message>
        <source>File</source>
        <translation>קובץ</translation>
    </message>
    <message>
        <source>View</source>
        <translation>תצוגה</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>מעבר</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>עזרה</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>מה שנאמר</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>אפשר לומר מה מחפשים, או לאיזו הזדמנות.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>ביטול השיחה</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>צ׳אט</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>להמשיך בצ׳אט, כדי גם לכתוב</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>שיחה עם %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>משך השיחה: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>הצגה בצ׳אט</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>הקטנה</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>לסגור ולהמשיך בצ׳אט</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>לסיים את השיחה ולסגור</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>רק התמונה</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>הגדלה</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>הצגת השיחה עם %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>שיחה עם %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>הרחבה לדף מלא</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>אפשר לעקוב אחריה בכל עת תחת ״הזמנות״.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>טעינה מחדש של הדף</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>תשלום מאובטח ב־Shopify  ·  הסל שלך נשאר כמו שהוא</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>קישור בדף הזה מוביל אל מחוץ לתשלום, אל %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>פתיחה בדפדפן</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>אי אפשר להציג כאן את התשלום</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>להמשך בדפדפן</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET לא הוגדרה</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>יש להריץ את scripts/sync-secrets.sh בתיקיית הפרויקט ולבנות שוב.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>נצפו לאחרונה</translation>
    </message>
    <message>
        <source>General</source>
        <translation>כללי</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>מדינה ומטבע</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>שפת החנות</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>פתיחת פריטים לצד הרשימה</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>בחלונות רחבים הפריט מוצג לצד המקום שבו נמצא</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>יחידות מידה</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>סנטימטרים וקילוגרמים</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>אינצ׳ים וליברות</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>דף ללא שם</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>השהיית המצגת</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>הפעלת המצגת</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>רווח</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>התרחקות</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>התקרבות</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>לא הצלחנו לטעון את התמונה</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>מדינה ושפה: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>מדינה ושפה</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>שפה</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>חיפוש שפות</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>חיפוש מדינות ומטבעות</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>שפות</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>מדינות</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>אין שפה שמתאימה ל״%1״</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>אין מדינה שמתאימה ל״%1״</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>פתיחה</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>בחלון</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>פס בחלקו העליון, לכמה שניות.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>בשולחן העבודה</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>היכן ששולחן העבודה מציג הודעות של יישומים, גם כשאין חלון פתוח.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>עם צליל</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>מונה על סמל היישום</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>כמה עדיין לא נקראו.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>הצגת דוגמה</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>על מה לעדכן</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>לא יומלץ עוד במחשב הזה.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>חלונית צד</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>פתיחה בכרטיסייה חדשה</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>סגירת חלונית הצד</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>רוחב חלונית הצד</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>לעזור לחנות לבחור מה להציג</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>החנות לומדת אילו דפים ופריטים נצפים, נכנסים לסל ונקנים, ומתי היישום נסגר במפתיע, בלי השם שלך. כשזה כבוי, נשלח רק מה שהכרחי.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>בכל מקרה</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>הכרחי הוא מה שביקשת</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>הדפים שנפתחים, החיפושים, הסל וההזמנות שלך צריכים להגיע לחנות.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>מה ששמרת נשאר במחשב הזה</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>רשימת המשאלות, מה שראית ומה שחיפשת, עד לניקוי.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>ההתחברות שלך נמצאת במחזיק המפתחות</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>כשאין כזה, בקובץ שרק לך מותר לקרוא. היא פגה אחרי 60 יום, ובכל התנתקות.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>צילום המסך נשמר</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>לא הצלחנו לשמור את צילום המסך</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>כדאי לבדוק שיש מקום בתיקיית התמונות.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>הצגת התיקייה</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>חיפוש, או הדבקת קישור</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>חיפוש לפי תמונה…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>צליל</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>עדכוני תוכנה</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>מדורים</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>להמשיך עם %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>מתחברים…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 ייפתח בדפדפן. התחברות שם מחברת אותך גם כאן.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>הועתק</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>העתקת הכתובת</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>לדפדפן שלא נפתח מעצמו</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>לא קרה כאן דבר?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>הדבקת הקישור שבו הדפדפן סיים</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>הוא מתחיל ב־״wrenfieldstore://‎״. יש דפדפנים שמציגים אותו בשורת הכתובת.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>סיום ההתחברות</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>פתיחת חשבון</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>התחברות לחשבון</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>דרכי התחברות</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>קוד במייל</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>סיסמה</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>שלחנו קוד אל %1. ייתכן שיגיע רק בעוד דקה.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>קודם נשלח קוד במייל, כדי לוודא שהכתובת שלך.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>נשלח לך קוד התחברות במייל. אין צורך בסיסמה.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>קוד אימות</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>שליחה חוזרת בעוד %L1 שנ׳</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>שליחה חוזרת</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>לשלוח שוב את הקוד</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>סיסמה (6 תווים לפחות)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>שם (לא חובה)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>שכחת סיסמה? אפשר להתחבר עם קוד במייל</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>לשלוח לי קוד במייל</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>או להמשיך עם</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>מיקרופון</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>בדיקה</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>להפסיק להקשיב למיקרופון</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>בדיקת המיקרופון</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>עוצמה</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>הוא בשימוש בשיחה.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>אומרים משהו והפס מגיב לקול. דבר לא יוצא מהמחשב הזה.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>מראה את עוצמת הקול שלך. דבר לא יוצא מהמחשב הזה.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>רמקול</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 משתיק את המיקרופון מכל מקום, כל עוד השיחה נמשכת.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>המקש M משתיק את המיקרופון בחלון השיחה.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>קישור</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>חיפוש ״%1״</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>אחרונים</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>נצפו ונשמרו</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>אין הצעות מתאימות. Enter מחפש בכל הפריטים.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>לבחירה</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>לסגירה</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>הסרת ״%1״ מהחיפושים האחרונים</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>תמונה: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>נפתח בדפדפן</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>לכתוב הודעה</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>צירוף תמונה או PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>תמונות ו־PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>אפשר לשחרר כאן תמונה או PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>איך אפשר לעזור?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>אפשר לשאול על הזמנה, החזרה או מידה. גם תמונות עוזרות.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>איפה ההזמנה שלי?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>אשמח להחזיר פריט</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>איזו מידה לקחת?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>בטעינה</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>סגירת %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>כרטיסייה חדשה משמאל</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>ביטול הצמדת הכרטיסייה</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>הצמדת הכרטיסייה</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>העברת הכרטיסייה לחלון חדש</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>פתיחה מחדש של כרטיסייה שנסגרה</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>סגירת הכרטיסייה</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>סגירת הכרטיסיות האחרות</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>הרחבת סרגל הצד</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>כיווץ סרגל הצד</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>כרטיסיות</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>כרטיסייה חדשה</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>חזרה</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>קדימה</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>תפריט</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>הוסר מתוך: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>עדכון</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>בדיקה אחרונה: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>עדיין לא נבדק</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>העותק הזה של LOOMSTREET לא יכול לעדכן את עצמו.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET מחפשת גרסאות חדשות בעצמה.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>כרגע LOOMSTREET לא מחפשת גרסאות חדשות בעצמה.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>גרסאות חדשות מגיעות מהמקום שממנו הותקנה. עדיין אפשר לבדוק כאן.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>בכל הפעלה ובכל שש שעות. מה שנמצא יורד ברקע ומותקן ביציאה; כשזה לא אפשרי, נודיע לך.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>החנות השהתה את זה. עדיין אפשר לבדוק כאן.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>בדיקת עדכוני תוכנה…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>גרסה %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>מה חדש</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>דילוג על הגרסה הזו</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>מזעור</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>שחזור</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>הגדלה</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>סגירת החלון</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>חיבור מאובטח אל %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>החיבור אינו מאובטח</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>החשבון שלך נמחק.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>ההתחברות הסתיימה לפני שהחשבון נמחק. כדי למחוק אותו צריך להתחבר שוב.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>משלוח</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>חינם</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>מסים</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>חבילה אחת</numerusform>
            <numerusform>%Ln חבילות</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>אושר</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>נארז</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>בוטל</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>בטיפול</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>ממתין לחברת המשלוחים</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>יצא לחלוקה</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>בעיה במסירה</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>התבקשה החזרה</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>ההחזרה אושרה</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>הכסף הוחזר</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>ההחזרה נדחתה</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 ועוד פריט אחד</numerusform>
            <numerusform>%1 ועוד %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>אפשר תו אחד לכל היותר.</numerusform>
            <numerusform>אפשר %Ln תווים לכל היותר.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>יש להזין מספר טלפון, למשל %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>יש להזין תאריך, למשל %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>יש להזין תאריך שעבר.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>אחד הפרטים לא התקבל. כדאי לבדוק ולנסות שוב.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>יש להזין כתובת מייל תקינה.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>הקוד שגוי או שפג תוקפו. אפשר לבקש חדש.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>יותר מדי ניסיונות. יש להמתין דקה ולנסות שוב.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>המייל והסיסמה לא תואמים. אפשר לנסות שוב או להתחבר עם קוד במייל.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>דרך ההתחברות הזו עדיין לא זמינה.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>לחשבון הזה אין כתובת מייל שנוכל להשתמש בה. כדאי לנסות דרך אחרת.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>ההתחברות בוטלה.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>ההתחברות נכשלה. כדאי לנסות שוב.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>יש להזין את שש ספרות הקוד.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>יש לבחור סיסמה של 6 תווים לפחות.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>יש להזין את הסיסמה. יש בה 6 תווים לפחות.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>זה לא הקישור שבו הסתיימה ההתחברות. הוא מתחיל ב־״wrenfieldstore://‎״.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>מרכז העזרה של LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>תקנון והסכמים</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>חלון חדש</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>הצמדה או ביטול הצמדה של הכרטיסייה</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>העברת הכרטיסייה אחורה</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>העברת הכרטיסייה קדימה</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>פתיחת הפריט שבחלונית הצד בדף מלא</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>פתיחת הפריט שבחלונית הצד בכרטיסייה חדשה</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>צילום מסך</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>מסך מלא</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>מעבר לדף הראשי של המדור</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>הכרטיסייה הבאה</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>הכרטיסייה הקודמת</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>מומלצים</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>החדשים ביותר</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>מחיר: מהנמוך לגבוה</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>מחיר: מהגבוה לנמוך</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>הנמכרים ביותר</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>היום</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>אתמול</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>נשים</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>גברים</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>יוקרה</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>תיקים</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>אקססוריז</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>החל מ־%1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>עד %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>מכירה סופית</translation>
    </message>
    <message>
        <source>New</source>
        <translation>חדש</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>נשאר רק אחד</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>נשאר רק אחד</numerusform>
            <numerusform>נשארו רק %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>ההתאמה הטובה ביותר</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>אי אפשר להחזיר את הפריט הזה</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>כדאי לוודא מידה וצבע לפני ההזמנה</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>מיוצר בשבילך</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>אפשר להחזיר רק אם הגיע פגום</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>מיוצר לפי הזמנה, ולכן לוקח יותר זמן</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>תוך 30 יום, ללא שימוש, עם כל מה שצורף</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>כדאי לשמור קופסה, שק בד ומסמכים</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>תוך 30 יום, סוליות נקיות, בקופסה</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>כדאי למדוד קודם בבית</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>תוך 30 יום, לא נלבש, עם התוויות</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>קודם צריך לבחור: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>פריט אחד בסל שלך</numerusform>
            <numerusform>%Ln פריטים בסל שלך</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>לא הצלחנו לממש את הקוד. כדאי לנסות שוב.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>״%1״ לא חל על הפריטים שבסל שלך.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>מגיע לך משלוח חינם לכל העולם</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>עוד %1 למשלוח חינם לכל העולם</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>ההזמנה בוצעה. היא תופיע תחת ״הזמנות״ בתוך כמה דקות.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>הזמנה %1 בוצעה. היא תופיע תחת ״הזמנות״ בתוך כמה דקות.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>פריט אחד  ·  אישור נשלח למייל שלך</numerusform>
            <numerusform>%Ln פריטים  ·  אישור נשלח למייל שלך</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>טעינת הדף ארכה יותר מדי זמן.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>הדף מוביל אל מחוץ לתשלום.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>הדף הפסיק לפעול.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>לא הצלחנו לפתוח את התשלום. כדאי לנסות שוב.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>עכשיו ב־%1 פחות</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>עבודה</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>דייט</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>מסיבות</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>חתונות</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>חופשה</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>נסיעות</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>יום־יום</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>סופי שבוע</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>לימודים</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>ראיונות עבודה</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>מסיבת סיום</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>פסטיבלים</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>חוף הים</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>בילוי לילי</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>בראנץ׳</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>חדר כושר</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>אירועים רשמיים</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>חדש באתר</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>לפי מה שאהבת</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>חדש השבוע</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>חדש השבוע</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>נבחר בקפידה</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>חדש השבוע · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>לפי מה שאהבת</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>אהוב על בעלי טעם דומה</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>לפי מה שראית באתר</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>טרנדי עכשיו</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>מתאים לחיפוש: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>לפי הטעם שלך: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>ל%1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>בסגנון %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>מתוק</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>וינטג׳</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>אלגנטי</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>מינימליסטי</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>רומנטי</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>סטריט</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>גותי</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>פרפי</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>צרפתי</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>נועז</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>פאנק</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>קוקט</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>קז׳ואל</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>בוהו</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>פסטיבל</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>קלאסי</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>ספורטיבי</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>שיק</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>גראנג׳</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>קוריאני</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>יפני</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>סיני חדש</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>אולד מאני</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>יוקרה שקטה</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>דארק אקדמיה</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>בלטקור</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>קוטג׳קור</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>סקסי</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>חמוד</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>קול</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>נשי</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>אנדרוגיני</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>וורקוור</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>רשמי</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>גלאם</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>אוונגרד</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>יוטיליטי</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>ווסטרן</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>ריזורט</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>דף הבית</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>סייל</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>תיבת ההודעות</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>יותר מדי ניסיונות. יש להמתין רגע ולנסות שוב.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>החיבור לחשבון פג. צריך להתחבר שוב.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>יש להזין את כתובת המייל שלך.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>חלק מהפרטים לא נראים נכונים. כדאי לבדוק אותם ולנסות שוב.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>יש ל־LOOMSTREET תקלה כרגע. כדאי לנסות שוב בעוד זמן קצר.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>זה לא עבד. כדאי לנסות שוב.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>התקבלה תשובה לא צפויה. כדאי לנסות שוב.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>לא הצלחנו להגיע אל LOOMSTREET. כדאי לנסות שוב.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>חסרות ליישום ההגדרות שלו.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>הבקשה ארכה יותר מדי זמן. כדאי לנסות שוב.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>עוד עדכון אחד מחכה בתיבת ההודעות שלך.</numerusform>
            <numerusform>עוד %Ln עדכונים מחכים בתיבת ההודעות שלך.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>הודעות מערכת</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>עדכוני חשבון ושירות</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>עדכוני הזמנות</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>הזמנה אושרה, נשלחה ונמסרה</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>החזרים כספיים והחזרות</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>החזרים כספיים שבוצעו ועדכוני החזרות</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>תשובות משירות הלקוחות</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>כששירות הלקוחות עונה לך</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>פריטים שביקשת זמינים שוב</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>פריטים ששמרת או ראית הוזלו</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>פעילות ב־Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>לייקים, תגובות, עוקבים חדשים והודעות</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>שינויי דרגה, נקודות וקופונים חדשים</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>מבצעים ואירועים</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>סיילים, השקות חדשות ואירועי החנות</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>נשלח קובץ מצורף</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>ההזמנה בוצעה</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>ההזמנה שלך אושרה. היא תופיע תחת ״הזמנות״ בתוך כמה דקות.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>הזמנה %1 אושרה. היא תופיע תחת ״הזמנות״ בתוך כמה דקות.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET לא הצליחה לעדכן את עצמה</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>לחיצה על ״עדכון״ בראש החלון תתקין את הגרסה החדשה מתמונת הדיסק.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>תצוגה מקדימה של עדכון</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>עדכוני הזמנות ותשובות משירות הלקוחות יופיעו כאן.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>הארון</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>כל הבגדים שלך במקום אחד</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>סטודיו ללוקים</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>לשלב פריטים ולראות אותם יחד</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>לוקבוק</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>הלוקים ששמרת</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>רעיונות ללוקים</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>דרכים חדשות ללבוש את מה שבארון</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>ייעוץ מידות</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>מידות הגוף שלך, והמידה שמתאימה להן</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>חיפוש לפי תמונה</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>למצוא פריט לפי תמונה שלו</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>השוואה</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>עד ארבעה פריטים זה לצד זה</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>בודקים עדכונים…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>הגרסה שלך מעודכנת</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>מורידים את LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>בודקים את ההורדה…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>מתקינים את LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>לא הצלחנו לבדוק עדכונים</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>לא הצלחנו להוריד את העדכון</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>מוכן להתקנה</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>התקנת העדכון</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 מוכן להתקנה</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 היא הגרסה החדשה ביותר.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET תיסגר, והגרסה החדשה תחליף אותה.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>ההורדה הסתיימה. הפעלה מחדש תשלים את העדכון, או שיותקן ביציאה הבאה.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>בחלון שנפתח, יש לגרור את LOOMSTREET אל ״יישומים״ ולבחור ״החלפה״. אחר כך לפתוח שוב את LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET לא הצליחה להחליף את עצמה במחשב הזה. אפשר להתקין את הגרסה החדשה מתמונת הדיסק. זה לוקח כמה שניות.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>הגרסה שלך כבר לא נתמכת.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>העדכון ירד. הפעלה מחדש של LOOMSTREET תשלים אותו, או שיותקן ביציאה הבאה.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>לא הצלחנו לבדוק עדכונים. כדאי לבדוק את החיבור ולנסות שוב.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>ההורדה נכשלה (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>ההורדה לא הושלמה או השתנתה בדרך. כדאי לנסות שוב.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>אי אפשר לקרוא את הקובץ שירד.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>ההורדה לא חתומה בידי LOOMSTREET, ולכן לא נפתחה.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>הורדה והתקנה</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>הפעלה מחדש לעדכון</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>פתיחת תמונת הדיסק</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>נראה שאין חיבור לאינטרנט.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>התשובה של Mira התעכבה יותר מדי.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>ההודעות נשלחות מהר מדי. כדאי להמתין רגע.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>אי אפשר לשלוח את ההודעה בניסוח הזה.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>יש ל־LOOMSTREET תקלה כרגע.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>לא הצלחנו להגיע אל LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>בחירת מידות: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>אזלו בינתיים ולא נוספו: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>לא הצלחנו לפתוח את התשלום. כדאי לבדוק את החיבור ולנסות שוב.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>הגובה או המשקל לא נראים נכונים. כדאי לבדוק את המספרים והיחידות.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>אחת המידות לא נראית נכונה. כדאי לבדוק את המספר או להשאיר ריק.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>רחבה</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>צמודה</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>רגילה</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>איך ללבוש את זה: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>ההודעה הזו לא אושרה. אפשר לנסות שוב.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>השיחה מעודכנת</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira כותבת תשובה</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira כותבת תשובה. אפשר לשלוח את אלה עוד רגע.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>הנושאים נשמרים במחשב הזה. Mira שומרת את זיכרון השיחות המשותף.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>לעזור לי למצוא משהו</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>לוק מהארון שלי</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>מה ללבוש הערב</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>ל־LOOMSTREET אין הרשאה לדעת את המיקום שלך. אפשר להקליד את העיר.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>לא הצלחנו למצוא את המיקום שלך. אפשר להקליד את העיר.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>העיר הזו לא מוכרת. כדאי לנסות עיר גדולה יותר בסביבה.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira לא יכולה לענות כרגע. כדאי לנסות שוב עוד רגע.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira בשיחה אחרת. כדאי לנסות שוב בעוד דקה.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>הקו קפץ לרגע. אפשר לחזור על זה?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>הקו התנתק. אפשר להתקשר שוב ולהמשיך לדבר.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>הגישה למיקרופון כבויה. יש להפעיל אותה תחת הגדרות המערכת › פרטיות ואבטחה › מיקרופון, ואז להתקשר שוב.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>לא הצלחנו להפעיל את המיקרופון. כדאי לבדוק שמיקרופון מחובר ולהתקשר שוב.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>השתקת המיקרופון בזמן שיחה</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>נוסף לסל שלך</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>נוסף לסל שלך: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>לא הצלחנו להוסיף. אפשר לנסות מדף הפריט.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>כבר לוקחת אותך לשם…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>פותחים: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>ברירת המחדל של המערכת</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>לא מחובר</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>מעילים וז׳קטים</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>חלקים עליונים</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>חלקים תחתונים</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>שמלות</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>נעליים</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>תוספות</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>נעים</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>שמשי</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>מעונן חלקית</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>מעונן</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>ערפילי</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>טפטופים</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>גשום</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>מושלג</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>ממטרים</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>סופת רעמים</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>הקובץ הזה כבר לא שם.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>אי אפשר לקרוא את הקובץ.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>הקובץ ריק.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>הקובץ גדול מ־10 MB. כדאי לבחור קובץ קטן יותר.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>אפשר לשלוח רק תמונות וקובצי PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>ייתכן שההודעה הזו לא הגיעה.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>מוסתרות</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>בדרך</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>נמסרו</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>לכתוב לשירות הלקוחות</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>שיחה עם שירות הלקוחות</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>״%1״</translation>
    </message>
</context>
</TS>
