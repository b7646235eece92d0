<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>คุณอยู่ที่นี่</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>เปิดแบบเต็มหน้า</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>กำลังส่ง…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>แสดงน้อยลง</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>แสดงทั้งหมด</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>กด Enter เพื่อส่ง กด Shift+Enter เพื่อขึ้นบรรทัดใหม่</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>ส่ง</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>นำออก</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>นำ %1 ออก</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>ก่อนหน้านี้</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>กลับไปเลือกปี</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>ถัดไป</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>ขยายอยู่</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>ย่ออยู่</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>ไปที่ข้อความล่าสุด</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>ข้อความใหม่ %Ln ข้อความ</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>ดูเหมือนคุณจะออฟไลน์อยู่ ตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>ซ่อนรหัสผ่าน</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>แสดงรหัสผ่าน</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1 จากเดิม %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>หมดแล้ว</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>กำลังทำงาน</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>นำออกจากรายการโปรด</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>เก็บไว้ในรายการโปรด</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>ค้นหา</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>ก่อนหน้า</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>ถัดไป</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1 หมดแล้ว</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1 แนะนำสำหรับคุณ</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>คะแนน %L1 จาก 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>คะแนน %L1 จาก 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>ลดจำนวน</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>เพิ่มจำนวน</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>เลิกทำ</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>บัญชีของคุณ</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>ออกจากระบบ</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>ตู้เสื้อผ้าที่จำคุณได้</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>คุณเลือกชมและซื้อทุกอย่างที่นี่ได้โดยไม่ต้องมีบัญชี แต่ถ้ามี ร้านจะรู้ว่าพัสดุของคุณอยู่ที่ไหน และคุณกำลังรออะไรอยู่</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>เข้าสู่ระบบ</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>สร้างบัญชี</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>ทุกคำสั่งซื้อในที่เดียว</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>รู้ว่าพัสดุแต่ละชิ้นอยู่ที่ไหน และคืนสินค้าได้โดยไม่ต้องหาใบเสร็จ</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>บอกคุณเมื่อถึงเวลาสำคัญ</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>ไซซ์ของคุณกลับมาแล้ว หรือราคาลดลงแล้ว</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>สิทธิ์สมาชิกและคูปอง</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>คะแนน ระดับ และสิทธิพิเศษที่คุณได้</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>ชำระเงินได้ทันใจ</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>มีที่อยู่ของคุณพร้อมแล้ว</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>ฝ่ายบริการลูกค้า</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>คำสั่งซื้อ การคืนสินค้า และไซซ์</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>คำสั่งซื้อ</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>กำลังจัดส่ง และที่เคยซื้อ</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>ติดตามพัสดุ</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>ด้วยเลขพัสดุหรือเลขคำสั่งซื้อ</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>การคืนสินค้า</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>ส่งสินค้าคืน</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>สำหรับคุณ</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>รายการโปรด</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>ยังไม่มีรายการโปรด</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>รายการเตือน</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>มีสินค้าอีกครั้ง และราคาที่ลดลง</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>สมาชิก</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>ระดับและคะแนนของคุณ</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>คูปอง</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>ใช้ได้ตอนชำระเงิน</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>บัญชี</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>โดยไม่ต้องมีบัญชี</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>โปรไฟล์</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>ชื่อ วันเกิด และจดหมายข่าว</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>ความเป็นส่วนตัว</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>สิ่งที่ร้านรู้เกี่ยวกับคุณ</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>เก็บไว้ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>ลบบัญชี…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>พวงกุญแจของระบบไม่ตอบสนอง</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>พวงกุญแจช่วยเก็บข้อมูลเข้าสู่ระบบของคุณให้ปลอดภัย ถ้าไม่มีก็เข้าสู่ระบบไม่ได้ ปลดล็อกแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>มีสินค้าอีกครั้ง</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>ราคาลดลง</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>มีสินค้าอีกครั้งแล้ว</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>ราคาลดลงแล้ว</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 ตอนที่คุณขอให้เตือน</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>หยุดเตือนรายการนี้</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>รายการเตือน %Ln รายการ</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>เราจะส่งอีเมลไปที่ %1 เมื่อสินค้ากลับมาหรือราคาลดลง</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>ยังไม่มีรายการเตือน</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>ถ้าไซซ์ของคุณหมด ให้กด “แจ้งฉันเมื่อสินค้ากลับมา” ส่วนชิ้นอื่นๆ กด “บอกฉันเมื่อราคาลดลง”</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>มาใหม่</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>เข้าสู่ระบบเพื่อดูรายการเตือนของคุณ</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>เราจะบอกคุณเมื่อสินค้ากลับมาในไซซ์ของคุณ หรือราคาถูกลง</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>เราจะไม่ส่งอีเมลเรื่องนี้ถึงคุณอีก</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>ดีไซเนอร์</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>ดีไซเนอร์ %Ln ราย</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>ค้นหาดีไซเนอร์</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>ล้าง</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>ตัวอักษร</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>ดีไซเนอร์อื่นๆ</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>ดีไซเนอร์ที่ขึ้นต้นด้วย %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>ไม่พบดีไซเนอร์ที่ตรงกับ “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>ตรวจตัวสะกด หรือเลือกดูจากทั้งหมด</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>แสดงดีไซเนอร์ทั้งหมด</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>ยังไม่มีไอเท็มที่นี่</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>มีไอเท็มใหม่เข้าทุกสัปดาห์</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>เลือกชม</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln รีวิว</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>ขายแล้ว %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>พรีเซล</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>คนเลือกมากที่สุด: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>ช่วยจัดลุคกับชิ้นนี้</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>เปรียบเทียบ</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>เทียบกับชิ้นที่คุณเก็บไว้หรือเคยดู</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>ส่งฟรีทั่วโลก</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>เมื่อช้อปครบ %1 ขึ้นไป</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>ควรรู้ก่อนซื้อ</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>รวมภาษีนำเข้าแล้ว</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>คำนวณค่าส่งตอนชำระเงิน</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>เราจะส่งอีเมลถึงคุณเมื่อสินค้ากลับมา</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>แจ้งฉันเมื่อสินค้ากลับมา</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>เพิ่มแล้ว</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>เพิ่มลงตะกร้า</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>กดเพื่อยกเลิก</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>กำลังเปิดหน้าชำระเงิน…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>ซื้อเลย</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>คุยสายกับ %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>เปิดในหน้าต่าง</translation>
    </message>
    <message>
        <source>End</source>
        <translation>วางสาย</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>วางสาย</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>แสดงสาย</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>โทรหา %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>โทรอีกครั้ง</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>ไมโครโฟนเปิดอยู่</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>ไมโครโฟนปิดเสียงอยู่</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>กำลังโทร…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>กำลังคิด</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>กำลังพูด</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>ปิดเสียงอยู่</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>กำลังฟัง</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>วางสายแล้ว</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>เปิดเสียง</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ปิดเสียง</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>รหัสส่วนลด</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>ใช้</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>โหลดตะกร้าของคุณไม่ได้</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>สินค้าของคุณยังอยู่ครบ ตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>ตะกร้าของคุณว่างอยู่</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>สินค้าที่คุณเพิ่มจะแสดงที่นี่</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>ช้อปต่อ</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>นำ %1 ออกแล้ว</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>ตะกร้าเดิมของคุณหมดอายุแล้ว มีสินค้าอยู่ %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>ใส่กลับ</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>จำนวนของ %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>นำออกจากตะกร้า</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>ปิดข้อความ</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>ตะกร้า</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>ตะกร้า</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>แสดงเป็นแผงด้านข้าง</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>ยอดรวมสินค้า</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>ส่วนลด</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>ยอดสุทธิ</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>รวมภาษีนำเข้าแล้ว · คำนวณค่าส่งตอนชำระเงิน</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>ชำระเงิน</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>ชำระเงินให้เสร็จในหน้าต่างชำระเงิน ตะกร้าของคุณจะยังอยู่เหมือนเดิม</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>ไม่มีจำหน่าย</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>คอลเลกชัน</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>มาใหม่ %Ln ชิ้นใน 30 วันที่ผ่านมา</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>ไม่มีคอลเลกชันนี้แล้ว</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>อาจมีการเปลี่ยนชื่อ หรือไม่ได้วางขายใน %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>ไม่มีสินค้าที่ตรงกับตัวกรองเหล่านี้</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>ลองเอาตัวกรองออกเพื่อดูเพิ่ม</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>เติมลุคให้ครบ</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>ไอเท็มที่ใส่คู่กันได้</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>ชิ้นอื่นที่มีคนชอบ</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>จากคนที่ดูชิ้นนี้</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>คุณอาจชอบชิ้นนี้ด้วย</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>เพิ่มไอเท็มเพื่อเปรียบเทียบ</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>เพิ่มไอเท็ม</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>จากรายการโปรดและชิ้นที่คุณเคยดู</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>เก็บหรือเปิดดูไอเท็ม แล้วมาเพิ่มที่นี่</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>เปรียบเทียบกับ %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>ไซซ์</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>วัสดุ</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>นำออกจากการเปรียบเทียบ</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>ไม่มีจำหน่ายในประเทศของคุณ</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>ไม่ได้ระบุ</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>ไซซ์ของ %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>กลับไปรายการแรก</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>ดูว่าคนอื่นใส่อะไร</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>เลือกชม</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>กำลังติดตาม</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>ข่าวจากดีไซเนอร์ของคุณ</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>ดูว่ามีอะไรใหม่</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>ตู้เสื้อผ้า</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>วันนี้ใส่อะไรดี?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>เปิดตู้เสื้อผ้า</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>คำสั่งซื้อและรายการเตือนของคุณ</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>สิทธิ์สมาชิกของคุณ</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>ดูสิทธิพิเศษ</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>พัสดุของฉันอยู่ที่ไหน?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>คำสั่งซื้อ %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>ดูคำสั่งซื้อ</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>ราคาลดลง</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>ไอเท็มของคุณราคาถูกลงแล้ว</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>เก็บชิ้นที่คุณรัก</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>เก็บไว้ %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>ดูรายการโปรด</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>ลบบัญชีของคุณ?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>โปรไฟล์ รายการเตือน ข้อมูลสมาชิก และประวัติคำสั่งซื้อของคุณจะถูกลบถาวร คำสั่งซื้อที่กำลังจัดส่งจะยังไปถึงคุณ การลบนี้ย้อนกลับไม่ได้</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>พิมพ์อีเมลของคุณเพื่อยืนยัน</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>ลบบัญชี</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>คอลเลกชัน</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>ตัวกรอง</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>ล้างตัวกรองทั้งหมด</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>ค้นหาใน %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>ไม่มีชื่อนี้</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>แสดงน้อยลง</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>แสดงทั้งหมด %Ln รายการ</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>ตั้งแต่</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>ไม่เกิน</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>แสดงสินค้า</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>แสดง %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>ปิดตัวกรอง</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>เลือกไว้ %Ln ชิ้น เปรียบเทียบได้ %L1 ชิ้น</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>เลือกไว้ %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>เลือก 2 ถึง 4 ชิ้น</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>เสร็จ</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>เลือก</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>ใหม่ล่าสุดก่อน</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>ราคา: ต่ำไปสูง</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>ราคา: สูงไปต่ำ</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>คุณดูครบทั้ง %Ln ชิ้นแล้ว</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>คอลเลกชัน: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>เปิด %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>เลือกไซซ์</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>ไซซ์</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>แนะนำสำหรับคุณ: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>อยู่ในตะกร้าแล้ว</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>เปลี่ยนชิ้น</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>ตัดออก</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 จาก %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>แทน %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>ตอนนี้ยังไม่มีชิ้นที่ใกล้เคียง</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>ชิ้นที่ Mira เลือก</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>ลุคของคุณ</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>เลือกไซซ์ เปลี่ยนชิ้นที่ยังไม่ถูกใจ และตัดชิ้นที่คุณมีอยู่แล้วออก</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>ซม.</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>นิ้ว</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>สัดส่วนของคุณ</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira ใช้ข้อมูลนี้หาไซซ์ให้คุณ ข้อมูลจะอยู่ในบทสนทนา และมีสำเนาอยู่ในคอมพิวเตอร์เครื่องนี้จนกว่าคุณจะออกจากระบบ</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>หน่วย</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>เมตริก</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>อิมพีเรียล</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>ส่วนสูง (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>ฟุต</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>น้ำหนัก (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>กก.</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>ปอนด์</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>รอบอก (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>รอบเอว (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>รอบสะโพก (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>ถ้าไม่ทราบ เว้นว่างไว้ได้</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>ทรงที่ชอบ</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>ส่งให้ Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>ลบออกจากคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>จัดลุคจากชิ้นนี้</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>เลือกไซซ์แล้วเพิ่มลงตะกร้า</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>ส่งข้อความถึง %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>จัดลุคกับ %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>ไอเท็มของฉัน · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>จัดลุคกับไอเท็มของฉัน</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>สภาพอากาศ</translation>
    </message>
    <message>
        <source>More</source>
        <translation>เพิ่มเติม</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>ดูลุค: %Ln ชิ้น ตามไซซ์ของคุณ</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>หัวข้อใหม่</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>หัวข้อ…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>รีเฟรช</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>จัดลุคกับไอเท็มของฉัน…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>สัดส่วนของฉัน…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>สภาพอากาศ…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>แสดงเคียงข้างหน้าปัจจุบัน</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>คำแนะนำ</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>ส่ง: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>บทสนทนากับ %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>เปลี่ยนชื่อ</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>ลบ</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>ชื่อหัวข้อ</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>ลบ “%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>เก็บไว้</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>หัวข้อ</translation>
    </message>
    <message>
        <source>You</source>
        <translation>คุณ</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>ใส่สัดส่วนของฉัน</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 จะใช้ชิ้นเหล่านี้ก่อน แล้วเพิ่มของใหม่เฉพาะส่วนที่ยังขาด</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>ยังไม่มีชิ้นให้จัดลุค</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>ไอเท็มในตะกร้าและรายการโปรดของคุณจะแสดงที่นี่</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>เลือกไว้ %Ln ชิ้น ครบจำนวนสูงสุดแล้ว</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>อยู่ในตะกร้าของคุณ</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>อยู่ในรายการโปรดของคุณ</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>คุณอยู่ที่ไหน? ลุคจะได้เข้ากับวันนี้</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>จัดลุคให้เข้ากับอากาศ</translation>
    </message>
    <message>
        <source>City</source>
        <translation>เมือง</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>ใช้ตำแหน่งของฉัน</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>คุณจะแต่งตัวไปไหน?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>บอก %1 ว่าไปงานอะไร ชอบชิ้นไหน หรือมีงบเท่าไร แล้วเธอจะจัดลุคให้</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>เข้าสู่ระบบเพื่อดูเรื่องคำสั่งซื้อและรายการเตือนของคุณ</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>แสดง</translation>
    </message>
    <message>
        <source>All</source>
        <translation>ทั้งหมด</translation>
    </message>
    <message>
        <source>System</source>
        <translation>ระบบ</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>ฝ่ายบริการลูกค้า</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>การแจ้งเตือน</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>เข้าสู่ระบบเพื่อดูการแจ้งเตือนของคุณ</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>ไม่มีอะไรใหม่</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>ที่นี่จะบอกเรื่องคำสั่งซื้อที่กำลังจัดส่ง สินค้าที่กลับมา และราคาที่ลดลง</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>เรื่องคำสั่งซื้อและไอเท็มที่คุณติดตามจะอยู่ที่นี่</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>ยังไม่ได้อ่าน</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>ทำเครื่องหมายว่าอ่านทั้งหมดแล้ว</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>ตั้งค่าการแจ้งเตือน</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>คาดว่าจะถึง %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>คำสั่งซื้อ</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>สั่งซื้อเมื่อ %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>พัสดุ</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>ไอเท็ม</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>การคืนสินค้าและคืนเงิน</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>ไม่พบคำสั่งซื้อนี้</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>คำสั่งซื้อใหม่ของคุณจะแสดงที่นี่ในไม่กี่นาที</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>อาจเป็นคำสั่งซื้อของบัญชีอื่น</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>เข้าสู่ระบบเพื่อดูคำสั่งซื้อนี้</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>ติดตามพัสดุด้วยเลขพัสดุได้โดยไม่ต้องมีบัญชี</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>จำนวน %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>ซ่อนไว้</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>แสดงคำสั่งซื้ออีกครั้ง</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>ซ่อนคำสั่งซื้อ</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>เลือกคำสั่งซื้อ</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>กำลังจัดส่ง</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>จัดส่งสำเร็จ</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>คำสั่งซื้อทั้งหมดของคุณถูกซ่อนไว้</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>ไม่มีคำสั่งซื้อที่กำลังจัดส่ง</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>ยังไม่มีคำสั่งซื้อที่จัดส่งสำเร็จ</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>ไม่มีการคืนสินค้า</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>บางรายการถูกซ่อนไว้</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>แสดงคำสั่งซื้อที่ซ่อนไว้</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>คำสั่งซื้อทั้งหมด</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>คำสั่งซื้อของคุณกำลังจะมาแสดงที่หน้านี้</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>ยังไม่มีคำสั่งซื้อ</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>สิ่งที่คุณสั่งจะแสดงที่นี่ พร้อมบอกว่ามาถึงไหนแล้ว</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>เข้าสู่ระบบเพื่อดูคำสั่งซื้อของคุณ</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>อยู่ที่ไหน มีอะไรบ้าง และส่งคืนได้อย่างไร</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>ซ่อนจากคำสั่งซื้อของคุณในคอมพิวเตอร์เครื่องนี้แล้ว</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>ขั้นตอนที่ %L1 จาก %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>สรุป</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>ที่อยู่จัดส่ง</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>ขอคืนสินค้า</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>พัสดุ %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>ยังไม่พบข้อมูลของเลขนี้</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>พัสดุใหม่อาจใช้เวลาหนึ่งวันกว่าบริษัทขนส่งจะมีข้อมูล</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>เปิดเว็บบริษัทขนส่ง</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>บริษัทขนส่งยังไม่ได้แจ้งข้อมูลใดๆ</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>ความเคลื่อนไหวของพัสดุ</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>ไม่พร้อมใช้งานชั่วคราว</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>ฟีเจอร์นี้หยุดพักอยู่ กรุณาลองใหม่ภายหลัง</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>นำออกจากรายการ</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>ไอเท็มนี้ไม่มีจำหน่าย</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>อาจหมดแล้วและไม่เข้าอีก หรือไม่ได้วางขายใน %1</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>เราจะส่งอีเมลถึงคุณเมื่อราคาถูกลง</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>บอกฉันเมื่อราคาลดลง</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln ชิ้นถูกลงกว่าตอนที่คุณดู</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>ยังไม่มีชิ้นให้เฝ้าดูราคา</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>ตอนนี้ยังไม่มีชิ้นที่ราคาลดลง</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>เก็บหรือเปิดดูไอเท็ม แล้วมาดูที่นี่ว่าราคาถูกลงเมื่อไร</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>ไอเท็มที่คุณเก็บและดูยังราคาเท่าเดิม หรือดูไว้ในสกุลเงินอื่น</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>ไฟนอลเซล</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>รูปภาพ</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>รูปที่ %L1 จาก %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1 รูปที่ %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>ดูทั้งหมด</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>ไม่สนใจ</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>หลังผ่านไป %Ln วัน: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>ร้านตอบว่า: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>รีวิว</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>รีวิวเพิ่มเติม</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>คำอธิบาย</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>จุดเด่น</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>รายละเอียด</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>คำถามและคำตอบ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>ชื่อ</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>โทรศัพท์</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>วันเกิด</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>เลือกวันที่</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>อีเมล</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>อีเมลที่คุณใช้เข้าสู่ระบบ</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>ประเทศ</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>บันทึก</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>ทิ้งการเปลี่ยนแปลง</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>บันทึกแล้ว</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>อยู่กับเรามาตั้งแต่ %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>จดหมายข่าว</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>ทางอีเมล</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>ไอเท็มใหม่และข้อเสนอ ส่งไปที่ %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>ทางข้อความ SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>ต้องใส่เบอร์โทรศัพท์ด้านบนก่อน</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>เข้าสู่ระบบเพื่อดูโปรไฟล์ของคุณ</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>ชื่อ เบอร์โทรศัพท์ และสิ่งที่เราส่งให้คุณได้</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>ดูเลย</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>ลองเลือกชมสักนิด แล้วที่นี่จะมีชิ้นที่เข้ากันให้คุณ</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>ดูล่าสุด</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>ล้างทั้งหมด</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>ยังไม่มีประวัติการเข้าชม</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>ไอเท็มที่คุณดูจะมารวมกันที่นี่ ให้คุณกลับมาหาเจอได้</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>เข้าสู่ระบบ แล้วเราจะส่งอีเมลถึงคุณเมื่อสินค้ากลับมา</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>อีเมลจะส่งไปที่ %1 กดอีกครั้งถ้าไม่ต้องการแล้ว</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>อีเมลจะส่งไปที่ %1</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>ขยายรูปที่ %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>ผลการค้นหา “%1” %Ln รายการ</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>คุณกำลังมองหาอะไร?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>ไม่พบผลการค้นหา “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>ตรวจตัวสะกด ลองคำที่กว้างขึ้น หรือดูในหมวดมาใหม่</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>ไม่มีอะไรตรงกับตัวกรองเหล่านี้</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>ลองเอาตัวกรองออกสักข้อสองข้อเพื่อดู “%1” เพิ่ม</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>ออกจากระบบ?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>ตะกร้าและรายการโปรดของคุณยังอยู่ในคอมพิวเตอร์เครื่องนี้ ส่วนคำสั่งซื้อและสิทธิ์สมาชิกจะกลับมาเมื่อคุณเข้าสู่ระบบอีกครั้ง</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>ตารางไซซ์</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>หน่วยของไซซ์</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>เรียงตาม: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>เครื่องมือ</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>ตอนนี้ยังไม่มีเครื่องมือ</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>เลขพัสดุหรือเลขคำสั่งซื้อ</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>ดูได้ในอีเมลแจ้งการจัดส่ง</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>เราไม่พบเลขนี้ ตรวจสอบแล้วลองใหม่พรุ่งนี้ พัสดุใหม่อาจใช้เวลาหนึ่งวันกว่าจะมีข้อมูล</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>ติดตาม</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>หน้านี้ไม่มีอยู่</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>อาจย้ายไปแล้ว หรือมีอยู่ในเวอร์ชันอื่น</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>กดรูปหัวใจที่ไอเท็ม แล้วไอเท็มจะรอคุณอยู่ที่นี่ เราจะเฝ้าดูราคาให้ด้วย</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>บัญชีของคุณ: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>กำลังค้นหาบัญชีของคุณ…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>ยังไม่มีใครเข้าสู่ระบบ</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>คำสั่งซื้อ รายการเตือน และสิทธิ์สมาชิกต้องมีบัญชี ส่วนการเลือกชมและซื้อไม่ต้องมี</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>รูปลักษณ์</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>สี</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>ตามเดสก์ท็อป</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>เปลี่ยนสว่างหรือมืดตามเดสก์ท็อป</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>สว่าง</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>มืด</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>กรอบหน้าต่างของเดสก์ท็อป</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>แถบชื่อเหนือแท็บ เหมือนหน้าต่างอื่นๆ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ไฟล์</translation>
    </message>
    <message>
        <source>View</source>
        <translation>มุมมอง</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>ไป</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>วิธีใช้</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>คำพูดในสาย</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>บอกว่าคุณกำลังมองหาอะไร หรือจะใช้ในโอกาสไหน</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>ยกเลิกการโทร</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>แชต</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>คุยต่อในแชต และพิมพ์ได้ด้วย</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>คุยสายกับ %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>ระยะเวลาในสาย: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>แสดงในแชต</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>ย่อให้เล็ก</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>ปิดแล้วคุยต่อในแชต</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>วางสายแล้วปิด</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>เฉพาะภาพ</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>ขยายให้ใหญ่</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>แสดงสายกับ %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>คุยสายกับ %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>ขยายเป็นเต็มหน้า</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>ติดตามได้ทุกเมื่อใน “คำสั่งซื้อ”</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>โหลดหน้านี้ใหม่</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>ชำระเงินอย่างปลอดภัยบน Shopify  ·  ตะกร้าของคุณจะยังอยู่เหมือนเดิม</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>ลิงก์ในหน้านี้พาออกจากหน้าชำระเงินไปที่ %1</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>เปิดในเบราว์เซอร์</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>แสดงหน้าชำระเงินที่นี่ไม่ได้</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>ไปต่อในเบราว์เซอร์</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET ยังไม่ได้ตั้งค่า</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>รัน scripts/sync-secrets.sh ในโฟลเดอร์โปรเจกต์ แล้วบิลด์ใหม่</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>ออกจากโปรแกรม</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>ประวัติการเข้าชม</translation>
    </message>
    <message>
        <source>General</source>
        <translation>ทั่วไป</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>ประเทศและสกุลเงิน</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>ภาษาของร้าน</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>เปิดไอเท็มไว้ข้างรายการสินค้า</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>เมื่อหน้าต่างกว้าง ไอเท็มจะแสดงข้างรายการที่คุณพบ</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>หน่วยวัดไซซ์</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>เซนติเมตรและกิโลกรัม</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>นิ้วและปอนด์</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>หน้าไม่มีชื่อ</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>หยุดสไลด์โชว์ชั่วคราว</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>เล่นสไลด์โชว์</translation>
    </message>
    <message>
        <source>Space</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Space</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>ย่อ</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>ขยาย</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>โหลดรูปนี้ไม่ได้</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>ประเทศและภาษา: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>ประเทศและภาษา</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>ภาษา</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>ค้นหาภาษา</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>ค้นหาประเทศและสกุลเงิน</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>ภาษา</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>ประเทศ</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>ไม่พบภาษาที่ตรงกับ “%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>ไม่พบประเทศที่ตรงกับ “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>เปิด</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>ในหน้าต่าง</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>แสดงแบนเนอร์ที่ด้านบนของหน้าต่างไม่กี่วินาที</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>บนเดสก์ท็อป</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>ตรงที่เดสก์ท็อปแสดงการแจ้งเตือนของแอป แม้ไม่มีหน้าต่างเปิดอยู่</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>พร้อมเสียง</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>ตัวเลขบนไอคอนแอป</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>จำนวนที่คุณยังไม่ได้อ่าน</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>แสดงตัวอย่าง</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>เรื่องที่จะแจ้ง</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>จะไม่แนะนำอีกในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>แผงด้านข้าง</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>เปิดในแท็บใหม่</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>ปิดแผงด้านข้าง</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>ความกว้างของแผงด้านข้าง</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>ช่วยร้านเลือกสิ่งที่จะแสดง</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>บอกร้านว่ามีการเปิดดูหน้าและไอเท็มใด ไอเท็มใดถูกใส่ตะกร้าหรือซื้อ และแอปปิดตัวโดยไม่คาดคิดเมื่อไร โดยไม่ระบุชื่อของคุณ ถ้าปิดไว้ จะส่งเฉพาะข้อมูลที่จำเป็น</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>ไม่ว่าจะเปิดหรือปิด</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>ข้อมูลจำเป็นคือสิ่งที่คุณขอเอง</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>หน้าที่คุณเปิด คำค้นหา ตะกร้า และคำสั่งซื้อของคุณต้องส่งไปถึงร้าน</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>สิ่งที่คุณเก็บอยู่ในคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>รายการโปรด สิ่งที่คุณดูและค้นหา จนกว่าคุณจะล้าง</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>ข้อมูลเข้าสู่ระบบอยู่ในพวงกุญแจ</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>ถ้าไม่มีพวงกุญแจ จะอยู่ในไฟล์ที่มีเพียงคุณเท่านั้นที่อ่านได้ และสิ้นสุดหลัง 60 วันหรือเมื่อคุณออกจากระบบ</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>บันทึกภาพหน้าจอแล้ว</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>บันทึกภาพหน้าจอไม่ได้</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>ตรวจสอบว่าโฟลเดอร์รูปภาพมีที่ว่างพอ</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>แสดงโฟลเดอร์</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>ค้นหา หรือวางลิงก์</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>ค้นหาด้วยรูปภาพ…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>เสียง</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>อัปเดต</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>หมวด</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>ดำเนินการต่อด้วย %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>กำลังพาคุณเข้าสู่ระบบ…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 จะเปิดในเบราว์เซอร์ เข้าสู่ระบบที่นั่น แล้วคุณจะเข้าสู่ระบบที่นี่ด้วย</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>คัดลอกแล้ว</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>คัดลอกที่อยู่ลิงก์</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>สำหรับเบราว์เซอร์ที่ไม่ได้เปิดเอง</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>ไม่มีอะไรเกิดขึ้นที่นี่?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>วางลิงก์สุดท้ายในเบราว์เซอร์ของคุณ</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>ลิงก์ขึ้นต้นด้วย “wrenfieldstore://” เบราว์เซอร์บางตัวจะแสดงไว้ในแถบที่อยู่</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>เข้าสู่ระบบให้เสร็จ</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>สร้างบัญชีของคุณ</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>เข้าสู่บัญชีของคุณ</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>วิธีเข้าสู่ระบบ</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>รหัสทางอีเมล</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>รหัสผ่าน</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>เราส่งรหัสไปที่ %1 แล้ว อาจใช้เวลาสักครู่กว่าจะถึง</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>เราจะส่งรหัสทางอีเมลก่อน เพื่อให้แน่ใจว่าอีเมลนี้เป็นของคุณ</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>เราจะส่งรหัสเข้าสู่ระบบทางอีเมล คุณไม่ต้องใช้รหัสผ่าน</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>รหัสยืนยัน</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>ส่งอีกครั้งได้ใน %L1 วินาที</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>ส่งอีกครั้ง</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>ส่งรหัสอีกครั้ง</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>รหัสผ่าน (6 ตัวอักษรขึ้นไป)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>ชื่อ (ไม่บังคับ)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>ลืมรหัสผ่าน? เข้าสู่ระบบด้วยรหัสทางอีเมลแทน</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>ส่งรหัสทางอีเมล</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>หรือดำเนินการต่อด้วย</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>ไมโครโฟน</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>หยุด</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>ทดลอง</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>หยุดฟังเสียงไมโครโฟน</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>ทดลองไมโครโฟน</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>ระดับเสียง</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>กำลังใช้ในสายสนทนา</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>ลองพูดอะไรสักหน่อย แถบจะขยับตามเสียงของคุณ เสียงจะไม่ออกจากคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>แสดงว่าเสียงของคุณดังแค่ไหน เสียงจะไม่ออกจากคอมพิวเตอร์เครื่องนี้</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>ลำโพง</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 ปิดเสียงไมโครโฟนได้จากทุกที่ ตลอดเวลาที่อยู่ในสาย</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M ปิดเสียงไมโครโฟนในหน้าต่างสนทนา</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>ลิงก์</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>ค้นหา “%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>ล่าสุด</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>ที่ดูและเก็บไว้</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>ยังไม่มีไอเท็มที่จะแนะนำ กด Enter เพื่อค้นหาทั้งหมด</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>เพื่อเลือก</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>เพื่อปิด</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>ลบ “%1” ออกจากการค้นหาล่าสุด</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>รูปภาพ: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>เปิดในเบราว์เซอร์</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>พิมพ์ข้อความ</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>แนบรูปภาพหรือ PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>รูปภาพและ PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>วางรูปภาพหรือ PDF ที่นี่</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>มีอะไรให้เราช่วยไหม?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>ถามเรื่องคำสั่งซื้อ การคืนสินค้า หรือไซซ์ของคุณได้ ส่งรูปมาด้วยก็ช่วยได้</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>คำสั่งซื้อของฉันอยู่ที่ไหน?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>ฉันอยากคืนสินค้า</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>ควรเลือกไซซ์ไหน?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>กำลังโหลด</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>ปิด %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>แท็บใหม่ทางขวา</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>เลิกปักหมุดแท็บ</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>ปักหมุดแท็บ</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>ย้ายแท็บไปหน้าต่างใหม่</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>เปิดแท็บที่ปิดไปอีกครั้ง</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>ปิดแท็บ</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>ปิดแท็บอื่น</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>ขยายแถบด้านข้าง</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>ย่อแถบด้านข้าง</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>แท็บ</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>แท็บใหม่</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>ย้อนกลับ</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>ไปข้างหน้า</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>เมนู</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>นำออกจาก: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>อัปเดต</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>ตรวจสอบล่าสุด: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>ยังไม่ได้ตรวจสอบ</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>LOOMSTREET ชุดนี้อัปเดตตัวเองไม่ได้</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET ตรวจหาเวอร์ชันใหม่เอง</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>ตอนนี้ LOOMSTREET ไม่ได้ตรวจหาเวอร์ชันใหม่เอง</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>เวอร์ชันใหม่จะมาจากที่ที่คุณได้โปรแกรมนี้มา แต่ตรวจสอบที่นี่ได้เช่นกัน</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>เมื่อเปิดโปรแกรมและทุกหกชั่วโมง ถ้าพบจะดาวน์โหลดเบื้องหลังและติดตั้งตอนคุณออกจากโปรแกรม ถ้าทำไม่ได้จะแจ้งให้คุณทราบ</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>ร้านหยุดการตรวจหาไว้ชั่วคราว คุณยังตรวจสอบที่นี่ได้</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>ตรวจหาอัปเดต…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>เวอร์ชัน %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>มีอะไรใหม่</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>ข้ามเวอร์ชันนี้</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>ย่อเล็กสุด</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>คืนขนาดเดิม</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>ขยายใหญ่สุด</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>ปิดหน้าต่าง</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>เชื่อมต่อกับ %1 อย่างปลอดภัย</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>การเชื่อมต่อไม่ปลอดภัย</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>ลบบัญชีของคุณแล้ว</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>คุณออกจากระบบก่อนที่บัญชีจะถูกลบ เข้าสู่ระบบอีกครั้งเพื่อลบบัญชี</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>ค่าจัดส่ง</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>ฟรี</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>ภาษี</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>พัสดุ %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>ยืนยันแล้ว</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>แพ็กแล้ว</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>ยกเลิกแล้ว</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>กำลังดำเนินการ</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>รอบริษัทขนส่ง</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>กำลังนำส่ง</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>มีปัญหาในการจัดส่ง</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>ขอคืนสินค้าแล้ว</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>อนุมัติการคืนสินค้าแล้ว</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>คืนเงินแล้ว</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>ไม่อนุมัติการคืนสินค้า</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 และอีก %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>ใช้ได้ไม่เกิน %Ln ตัวอักษร</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>ใส่เบอร์โทรศัพท์ เช่น %1</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>ใส่วันที่ เช่น %1</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>ใส่วันที่ที่ผ่านมาแล้ว</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>ข้อมูลบางอย่างไม่ผ่าน ตรวจสอบแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>ใส่อีเมลที่ถูกต้อง</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>รหัสนี้ไม่ถูกต้องหรือหมดอายุแล้ว ขอรหัสใหม่อีกครั้ง</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>ลองหลายครั้งเกินไป รอสักหนึ่งนาทีแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>อีเมลและรหัสผ่านไม่ตรงกัน ลองอีกครั้ง หรือเข้าสู่ระบบด้วยรหัสทางอีเมล</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>วิธีเข้าสู่ระบบนี้ยังใช้ไม่ได้</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>บัญชีนั้นไม่มีอีเมลที่เราใช้ได้ ลองวิธีอื่น</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>ยกเลิกการเข้าสู่ระบบแล้ว</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>เข้าสู่ระบบไม่สำเร็จ ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>ใส่รหัสตัวเลขหกหลัก</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>ตั้งรหัสผ่าน 6 ตัวอักษรขึ้นไป</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>ใส่รหัสผ่านของคุณ รหัสมี 6 ตัวอักษรขึ้นไป</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>นี่ไม่ใช่ลิงก์สุดท้ายของการเข้าสู่ระบบ ลิงก์นั้นขึ้นต้นด้วย “wrenfieldstore://”</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>ศูนย์ช่วยเหลือ LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>ข้อตกลง</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>หน้าต่างใหม่</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>ปักหมุดหรือเลิกปักหมุดแท็บ</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>เลื่อนแท็บไปทางซ้าย</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>เลื่อนแท็บไปทางขวา</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>เปิดสินค้าในแผงด้านข้างแบบเต็มหน้า</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>เปิดสินค้าในแผงด้านข้างในแท็บใหม่</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>ถ่ายภาพหน้าจอ</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>เต็มจอ</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>ไปหน้าแรกของหมวด</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>แท็บถัดไป</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>แท็บก่อนหน้า</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>แนะนำ</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>ใหม่ล่าสุด</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>ราคา: ต่ำไปสูง</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>ราคา: สูงไปต่ำ</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>ขายดี</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>วันนี้</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>เมื่อวาน</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>ผู้หญิง</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>ผู้ชาย</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>ลักชัวรี</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>กระเป๋า</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>แอ็กเซสซอรี</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>ตั้งแต่ %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>ไม่เกิน %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>ไฟนอลเซล</translation>
    </message>
    <message>
        <source>New</source>
        <translation>ใหม่</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>เหลือชิ้นเดียว</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>เหลือเพียง %Ln ชิ้น</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>ตรงที่สุด</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>ไอเท็มนี้คืนไม่ได้</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>ตรวจสอบไซซ์และสีก่อนสั่งซื้อ</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>สั่งทำพิเศษเพื่อคุณ</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>คืนได้เฉพาะเมื่อสินค้ามาถึงแบบชำรุด</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>ผลิตตามสั่ง โปรดเผื่อเวลาเพิ่ม</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>ภายใน 30 วัน ไม่ผ่านการใช้ พร้อมของที่ให้มาครบ</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>เก็บกล่อง ถุงผ้า และเอกสารไว้</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>ภายใน 30 วัน พื้นรองเท้าไม่มีรอย อยู่ในกล่อง</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>ลองใส่ในบ้านก่อน</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>ภายใน 30 วัน ไม่ผ่านการใส่ ป้ายครบ</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>เลือก %1 ก่อน</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>สินค้า %Ln ชิ้นในตะกร้าของคุณ</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>ใช้รหัสนี้ไม่ได้ ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1” ใช้กับสินค้าในตะกร้าของคุณไม่ได้</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>คุณได้สิทธิ์ส่งฟรีทั่วโลกแล้ว</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>ช้อปอีก %1 รับสิทธิ์ส่งฟรีทั่วโลก</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>สั่งซื้อแล้ว จะแสดงใน “คำสั่งซื้อ” ภายในไม่กี่นาที</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>คำสั่งซื้อ %1 เรียบร้อยแล้ว จะแสดงใน “คำสั่งซื้อ” ภายในไม่กี่นาที</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln ชิ้น  ·  ส่งอีเมลยืนยันถึงคุณแล้ว</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>หน้านี้โหลดนานเกินไป</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>หน้านี้พาออกจากหน้าชำระเงิน</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>หน้านี้หยุดทำงาน</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>เริ่มชำระเงินไม่ได้ ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>ถูกลง %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>วันทำงาน</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>ออกเดต</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>ปาร์ตี้</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>งานแต่งงาน</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>วันพักร้อน</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>การเดินทาง</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>ทุกวัน</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>วันหยุดสุดสัปดาห์</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>ไปเรียน</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>สัมภาษณ์งาน</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>วันรับปริญญา</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>เทศกาลดนตรี</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>ไปทะเล</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>เที่ยวกลางคืน</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>มื้อบรันช์</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>เข้ายิม</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>งานทางการ</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>สินค้ามาใหม่</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>คัดจากสิ่งที่คุณชอบ</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>ใหม่สัปดาห์นี้</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>ใหม่สัปดาห์นี้</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>คัดมาเพื่อคุณ</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>ใหม่สัปดาห์นี้ · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>คัดจากสิ่งที่คุณชอบ</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>คนสไตล์เดียวกับคุณชอบ</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>คัดจากที่คุณเพิ่งดู</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>กำลังมาแรง</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>ตรงกับที่คุณค้นหา: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>ตรงกับที่คุณชอบ: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>สำหรับ%1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>คัดมาในสไตล์%1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>หวาน</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>วินเทจ</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>เรียบหรู</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>มินิมอล</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>โรแมนติก</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>สตรีท</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>โกธิก</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>เพรปปี้</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>ฝรั่งเศส</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>เปรี้ยว</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>พังก์</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>โคเกตต์</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>แคชชวล</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>โบโฮ</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>เทศกาลดนตรี</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>คลาสสิก</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>สปอร์ต</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>ชิค</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>กรันจ์</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>เกาหลี</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>ญี่ปุ่น</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>จีนสมัยใหม่</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>โอลด์มันนี่</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>ไควเอตลักชัวรี</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>ดาร์กอะคาเดเมีย</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>บัลเลต์คอร์</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>คอตเทจคอร์</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>เซ็กซี่</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>น่ารัก</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>เท่</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>เฟมินีน</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>ไม่แบ่งเพศ</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>เวิร์กแวร์</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>ทางการ</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>แกลม</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>อาวองการ์ด</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>ยูทิลิตี้</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>คาวบอย</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>รีสอร์ต</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>หน้าแรก</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>ลดราคา</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>กล่องข้อความ</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>ลองหลายครั้งเกินไป รอสักครู่แล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>เซสชันของคุณหมดอายุแล้ว เข้าสู่ระบบอีกครั้ง</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>ใส่อีเมลของคุณ</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>ข้อมูลบางอย่างดูไม่ถูกต้อง ตรวจสอบแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>ตอนนี้ LOOMSTREET มีปัญหาอยู่ ลองอีกครั้งในอีกสักครู่</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>ไม่สำเร็จ ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>ได้รับคำตอบที่ไม่คาดคิด ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>ติดต่อ LOOMSTREET ไม่ได้ ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>แอปไม่มีข้อมูลการตั้งค่า</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>คำขอใช้เวลานานเกินไป ลองอีกครั้ง</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>มีการแจ้งเตือนอีก %Ln รายการรออยู่ในกล่องข้อความของคุณ</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>การแจ้งเตือนจากระบบ</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>ข่าวเรื่องบัญชีและบริการ</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>ความคืบหน้าของคำสั่งซื้อ</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>ยืนยันคำสั่งซื้อ เริ่มจัดส่ง และจัดส่งสำเร็จ</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>การคืนเงินและคืนสินค้า</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>การคืนเงินและความคืบหน้าของการคืนสินค้า</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>คำตอบจากฝ่ายบริการลูกค้า</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>เมื่อฝ่ายบริการลูกค้าตอบคุณ</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>ชิ้นที่คุณให้เตือนมีสินค้าอีกครั้ง</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>ชิ้นที่เก็บไว้หรือเคยดูราคาถูกลง</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>กิจกรรมใน Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>ถูกใจ ความคิดเห็น ผู้ติดตามใหม่ และข้อความ</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>การเปลี่ยนระดับ คะแนน และคูปองใหม่</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>โปรโมชันและกิจกรรม</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>ลดราคา ของมาใหม่ และกิจกรรมของร้าน</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>ส่งไฟล์แนบแล้ว</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>สั่งซื้อแล้ว</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>คำสั่งซื้อของคุณได้รับการยืนยันแล้ว จะแสดงใน “คำสั่งซื้อ” ภายในไม่กี่นาที</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>คำสั่งซื้อ %1 ได้รับการยืนยันแล้ว จะแสดงใน “คำสั่งซื้อ” ภายในไม่กี่นาที</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET อัปเดตตัวเองไม่ได้</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>คลิก “อัปเดต” ที่ด้านบนของหน้าต่างเพื่อติดตั้งเวอร์ชันใหม่จากดิสก์อิมเมจ</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>ตัวอย่างการแจ้งเตือน</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>ความคืบหน้าของคำสั่งซื้อและคำตอบจากฝ่ายบริการลูกค้าจะแสดงที่นี่</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>ตู้เสื้อผ้า</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>ทุกชิ้นที่คุณมี ในที่เดียว</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>สตูดิโอจัดชุด</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>จับไอเท็มมาเข้าชุดแล้วดูภาพรวม</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>ลุคบุ๊ก</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>ชุดที่คุณเก็บไว้</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>ไอเดียแต่งตัว</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>วิธีใหม่ๆ ในการใส่ของในตู้เสื้อผ้าคุณ</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>แนะนำไซซ์</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>สัดส่วนของคุณ และไซซ์ที่พอดี</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>ค้นหาด้วยรูปภาพ</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>หาไอเท็มจากรูปภาพ</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>เปรียบเทียบ</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>เทียบกันได้สูงสุดสี่ชิ้น</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>กำลังตรวจหาอัปเดต…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>เป็นเวอร์ชันล่าสุดแล้ว</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>กำลังดาวน์โหลด LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>กำลังตรวจสอบไฟล์ที่ดาวน์โหลด…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>กำลังติดตั้ง LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>ตรวจหาอัปเดตไม่ได้</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>ดาวน์โหลดอัปเดตไม่ได้</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>พร้อมติดตั้ง</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>ติดตั้งอัปเดต</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 พร้อมติดตั้งแล้ว</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 เป็นเวอร์ชันล่าสุด</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET จะปิดลง แล้วเวอร์ชันใหม่จะเข้ามาแทนที่</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>ดาวน์โหลดแล้ว เปิดโปรแกรมใหม่เพื่อให้เสร็จ หรือจะติดตั้งเมื่อคุณออกจากโปรแกรมครั้งต่อไป</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>ในหน้าต่างที่เพิ่งเปิด ให้ลาก LOOMSTREET ไปที่ “แอปพลิเคชัน” เลือก “แทนที่” แล้วเปิด LOOMSTREET อีกครั้ง</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET แทนที่ตัวเองในคอมพิวเตอร์เครื่องนี้ไม่ได้ ให้ติดตั้งเวอร์ชันใหม่จากดิสก์อิมเมจแทน ใช้เวลาไม่กี่วินาที</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>เวอร์ชันที่คุณใช้ไม่ได้รับการสนับสนุนแล้ว</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>ดาวน์โหลดอัปเดตแล้ว เปิด LOOMSTREET ใหม่เพื่อให้เสร็จ หรือจะติดตั้งเมื่อคุณออกจากโปรแกรมครั้งต่อไป</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>ตรวจหาอัปเดตไม่ได้ ตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>ดาวน์โหลดไม่สำเร็จ (HTTP %1)</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>ไฟล์ที่ดาวน์โหลดไม่ครบหรือถูกเปลี่ยนระหว่างทาง ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>อ่านไฟล์ที่ดาวน์โหลดไม่ได้</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>ไฟล์ที่ดาวน์โหลดไม่ได้ลงลายเซ็นโดย LOOMSTREET จึงไม่ได้เปิด</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>ดาวน์โหลดและติดตั้ง</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>เปิดใหม่เพื่ออัปเดต</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>เปิดดิสก์อิมเมจ</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>ดูเหมือนคุณจะออฟไลน์อยู่</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira ใช้เวลาตอบนานเกินไป</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>คุณส่งข้อความเร็วเกินไป รอสักครู่ก่อน</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>ส่งข้อความนี้ตามที่เขียนไม่ได้</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>ตอนนี้ LOOMSTREET มีปัญหาอยู่</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>ติดต่อ LOOMSTREET ไม่ได้</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>เลือกไซซ์สำหรับ %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>หมดไปก่อนจึงไม่ได้เพิ่ม: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>เริ่มชำระเงินไม่ได้ ตรวจสอบการเชื่อมต่อแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>ส่วนสูงหรือน้ำหนักดูไม่ถูกต้อง ตรวจสอบตัวเลขและหน่วย</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>มีสัดส่วนหนึ่งดูไม่ถูกต้อง ตรวจสอบตัวเลข หรือเว้นว่างไว้</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>หลวม</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>เข้ารูป</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>ปกติ</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>ช่วยจัดลุคกับชิ้นนี้: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>ข้อความนี้ยังไม่ได้รับการยืนยัน คุณลองอีกครั้งได้</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>บทสนทนาเป็นปัจจุบันแล้ว</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira กำลังตอบ</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira กำลังตอบ คุณส่งข้อความเหล่านี้ได้ในอีกสักครู่</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>หัวข้อบันทึกอยู่ในคอมพิวเตอร์เครื่องนี้ และ Mira ยังจำสิ่งที่คุยร่วมกันได้</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>ช่วยฉันหาของ</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>จัดลุคจากตู้เสื้อผ้าของฉัน</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>คืนนี้ใส่อะไรดี</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET ไม่ได้รับอนุญาตให้ดูตำแหน่งของคุณ พิมพ์ชื่อเมืองแทนได้</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>ไม่พบตำแหน่งของคุณ พิมพ์ชื่อเมืองแทนได้</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>ไม่พบเมืองนี้ ลองเมืองใหญ่กว่าในบริเวณใกล้กัน</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>ตอนนี้ Mira รับสายไม่ได้ ลองอีกครั้งในอีกสักครู่</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira กำลังคุยอีกสายอยู่ ลองอีกครั้งในหนึ่งนาที</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>สัญญาณสะดุดไปนิด พูดอีกครั้งได้ไหม?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>สายหลุด โทรอีกครั้งเพื่อคุยต่อ</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>ปิดสิทธิ์ใช้ไมโครโฟนอยู่ เปิดได้ที่ การตั้งค่าระบบ › ความเป็นส่วนตัวและความปลอดภัย › ไมโครโฟน แล้วโทรอีกครั้ง</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>เริ่มใช้ไมโครโฟนไม่ได้ ตรวจสอบว่าเชื่อมต่อไว้แล้ว จากนั้นโทรอีกครั้ง</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>ปิดเสียงไมโครโฟนระหว่างสาย</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>เพิ่มลงตะกร้าของคุณแล้ว</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>เพิ่ม %1 ลงตะกร้าของคุณแล้ว</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>เพิ่มไม่ได้ ลองจากหน้าสินค้า</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>กำลังพาคุณไป…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>กำลังเปิด %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>ค่าเริ่มต้นของระบบ</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>ไม่ได้เชื่อมต่อ</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>เสื้อตัวนอก</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>เสื้อ</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>กางเกงและกระโปรง</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>เดรส</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>รองเท้า</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>ไอเท็มเสริม</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>อากาศสบาย</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>แดดจัด</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>มีเมฆบางส่วน</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>เมฆมาก</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>มีหมอก</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>ฝนปรอย</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>ฝนตก</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>หิมะตก</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>ฝนเป็นช่วงๆ</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>ฝนฟ้าคะนอง</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>ไฟล์นี้ไม่อยู่แล้ว</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>อ่านไฟล์นี้ไม่ได้</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>ไฟล์นี้ว่างเปล่า</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>ไฟล์นี้ใหญ่กว่า 10 MB เลือกไฟล์ที่เล็กกว่า</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>ส่งได้เฉพาะรูปภาพและไฟล์ PDF</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>ข้อความนี้อาจยังไปไม่ถึง</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>ที่ซ่อนไว้</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>กำลังจัดส่ง</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>จัดส่งสำเร็จ</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>ส่งข้อความถึงฝ่ายบริการลูกค้า</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>บทสนทนากับฝ่ายบริการลูกค้า</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
