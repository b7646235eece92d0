<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Bạn đang ở đây</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Mở toàn trang</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Đang gửi…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Thu gọn</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Xem tất cả</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter để gửi, Shift+Enter để xuống dòng</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Gửi</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Thử lại</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Bỏ</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Bỏ %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Trước đó</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Quay lại chọn năm</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Sau đó</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Đang mở</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Đang thu gọn</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Tới tin mới nhất</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln tin nhắn mới</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Có vẻ bạn đang ngoại tuyến. Hãy kiểm tra kết nối rồi thử lại.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Ẩn mật khẩu</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Hiện mật khẩu</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, giá cũ %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Hết hàng</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Đang xử lý</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Bỏ khỏi danh sách yêu thích</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Lưu vào danh sách yêu thích</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Tìm kiếm</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Trước</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tiếp</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, hết hàng</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, gợi ý cho bạn</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Đánh giá %L1 trên 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Đánh giá %L1 trên 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Giảm bớt</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Thêm một</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Hoàn tác</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Tài khoản của bạn</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Đăng xuất</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Luôn ghi nhớ tủ đồ của bạn</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Bạn có thể xem và mua mọi thứ ở đây mà không cần tài khoản. Nếu có tài khoản, cửa hàng sẽ biết kiện hàng của bạn đang ở đâu và bạn đang chờ món nào.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Đăng nhập</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Tạo tài khoản</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Mọi đơn hàng ở một nơi</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Biết từng kiện hàng ở đâu, trả hàng không cần tìm hóa đơn</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Nhắn bạn đúng lúc</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Size của bạn đã có lại, hoặc giá vừa hạ</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Thành viên và phiếu ưu đãi</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Điểm, hạng và những quyền lợi đi kèm</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Thanh toán nhanh gọn</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Địa chỉ của bạn có sẵn rồi</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Chăm sóc khách hàng</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Đơn hàng, trả hàng và size</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Đơn hàng</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Đang giao và đã mua</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Theo dõi kiện hàng</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Bằng mã kiện hàng hoặc mã đơn hàng</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Trả hàng</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Gửi trả món đồ</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Dành cho bạn</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Danh sách yêu thích</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Chưa lưu món nào</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln món</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Lời nhắc</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Có hàng trở lại và hạ giá</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Thành viên</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Hạng và điểm của bạn</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Phiếu ưu đãi</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Dùng khi thanh toán</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Tài khoản</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Không cần tài khoản</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Hồ sơ</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Tên, ngày sinh và bản tin</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Quyền riêng tư</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Cửa hàng biết gì về bạn</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Lưu trên máy tính này</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Xóa tài khoản…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Chùm khóa của bạn không phản hồi</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Chùm khóa giữ thông tin đăng nhập của bạn an toàn, thiếu nó thì không thể đăng nhập. Hãy mở khóa rồi thử lại.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Có hàng trở lại</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Hạ giá</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Đã có hàng trở lại</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Giá đã hạ</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 lúc bạn đặt lời nhắc</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Tắt lời nhắc này</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln lời nhắc</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Chúng tôi gửi email tới %1 khi món đồ có hàng trở lại hoặc hạ giá.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Chưa có lời nhắc nào</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Với món đã hết size của bạn, hãy nhấn “Báo tôi khi có hàng trở lại”. Với món khác, nhấn “Báo tôi khi hạ giá”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Hàng mới</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Đăng nhập để xem lời nhắc của bạn</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Chúng tôi báo bạn khi món đồ có lại đúng size hoặc hạ giá.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Chúng tôi sẽ không gửi email về việc này nữa.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln món</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Nhà thiết kế</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln nhà thiết kế</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Tìm nhà thiết kế</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Chữ cái</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Nhà thiết kế khác</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Nhà thiết kế vần %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Không có nhà thiết kế nào khớp với “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Hãy kiểm tra chính tả hoặc xem toàn bộ danh sách.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Xem tất cả nhà thiết kế</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Chưa có gì ở đây</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Hàng mới về mỗi tuần.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Khám phá</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln đánh giá</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>Đã bán %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Đặt trước</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Được chọn nhiều nhất: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Phối món này giúp tôi</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>So sánh</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Với những món bạn đã lưu hoặc đã xem</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>MIỄN PHÍ giao hàng toàn cầu</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Cho giỏ hàng từ %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Cần biết trước khi mua</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Đã gồm thuế nhập khẩu</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Phí giao hàng tính khi thanh toán</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Chúng tôi sẽ gửi email khi có hàng trở lại</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Báo tôi khi có hàng trở lại</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Đã thêm</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Thêm vào giỏ hàng</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Nhấn để hủy</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Đang mở trang thanh toán…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Mua ngay</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Cuộc gọi với %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Mở trong cửa sổ</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Kết thúc</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Kết thúc cuộc gọi</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Hiện cuộc gọi</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Gọi %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Gọi lại</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Micrô đang bật</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Micrô đang tắt tiếng</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Đang gọi…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Đang nghĩ</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Đang nói</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Đã tắt tiếng</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Đang nghe</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Cuộc gọi đã kết thúc</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Bật tiếng</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Tắt tiếng</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Mã giảm giá</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Áp dụng</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Không tải được giỏ hàng của bạn</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Các món của bạn vẫn còn nguyên. Hãy kiểm tra kết nối rồi thử lại.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Giỏ hàng đang trống</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Món bạn thêm sẽ hiện ở đây.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Tiếp tục mua sắm</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Đã bỏ %1 khỏi giỏ hàng.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Giỏ hàng trước của bạn đã hết hạn. Trong đó có %Ln món.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Cho lại vào</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Số lượng của %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Bỏ khỏi giỏ hàng</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Bỏ qua</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Giỏ hàng</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Giỏ hàng</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Hiện ở ngăn bên</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Tạm tính</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Giảm giá</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Tổng cộng</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Đã gồm thuế nhập khẩu · Phí giao hàng tính khi thanh toán</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Thanh toán</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Hãy hoàn tất trong cửa sổ thanh toán. Giỏ hàng của bạn vẫn giữ nguyên.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Hiện không bán</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Bộ sưu tập</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln món mới trong 30 ngày qua</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Bộ sưu tập này hiện không có</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Có thể đã đổi tên hoặc không bán tại %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Không có món nào khớp với bộ lọc</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Hãy bỏ bớt bộ lọc để xem thêm.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Hoàn thiện set đồ</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Những món mặc cùng</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Cũng được yêu thích</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Từ những người đã xem món này</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Có thể bạn cũng thích</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Thêm món để so sánh</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Thêm món</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Từ danh sách yêu thích và những món bạn đã xem</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Hãy lưu hoặc xem vài món rồi thêm vào đây.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>So sánh với %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Chất liệu</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Bỏ khỏi bảng so sánh</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Không bán tại khu vực của bạn.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>không ghi rõ</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Size của %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Về mục đầu tiên</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Mọi người mặc gì</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Dạo một vòng</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Đang theo dõi</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Tin từ nhà thiết kế của bạn</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Xem có gì mới</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Tủ đồ</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Hôm nay mặc gì đây?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Mở tủ đồ</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Đơn hàng và lời nhắc của bạn</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Hạng thành viên của bạn</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Xem quyền lợi</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Kiện hàng của tôi đâu rồi?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Đơn hàng %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Xem đơn hàng</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Hạ giá</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Những món của bạn đang rẻ hơn</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Giữ lại món bạn yêu</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>Đã lưu %Ln món</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Xem danh sách yêu thích</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Xóa tài khoản của bạn?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Hồ sơ, lời nhắc, hạng thành viên và danh sách đơn hàng của bạn sẽ bị xóa vĩnh viễn. Đơn đang giao vẫn tới tay bạn. Thao tác này không thể hoàn tác.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Nhập địa chỉ email của bạn để xác nhận</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Xóa tài khoản</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Bộ sưu tập</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Bộ lọc</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Xóa mọi bộ lọc</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Tìm trong %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Không có tên này</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Thu gọn</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Xem tất cả %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Từ</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Đến</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Xem các món</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Xem %Ln món</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Đóng bộ lọc</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>Đã chọn %Ln món, so sánh được %L1 món</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>Đã chọn %Ln món</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Chọn hai đến bốn món</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Xong</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Chọn</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Mới nhất trước</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Giá: thấp đến cao</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Giá: cao đến thấp</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Bạn đã xem hết %Ln món</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Bộ sưu tập: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Mở %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Chọn size</translation>
    </message>
    <message>
        <source>Size</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Size</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Gợi ý cho bạn: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Trong giỏ hàng</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Thay món</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Bỏ ra</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 trên %Ln món</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Thay cho %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Hiện chưa có món nào tương tự.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira chọn</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Set đồ của bạn</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Chọn size, thay món bạn chưa ưng, bỏ ra món bạn đã có.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>inch</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Số đo của bạn</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira dựa vào đây để tìm size cho bạn. Số đo được đưa vào cuộc trò chuyện, và một bản lưu trên máy tính này cho đến khi bạn đăng xuất.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Đơn vị</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Hệ mét</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Hệ Anh</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Chiều cao (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>ft</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Cân nặng (%1)</translation>
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
        <translation>Vòng ngực (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Vòng eo (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Vòng mông (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Nếu không biết, bạn cứ để trống.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Phom ưa thích</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Gửi cho Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Xóa khỏi máy tính này</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Phối set từ món này</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Chọn size và thêm vào giỏ hàng</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Nhắn cho %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Set đồ với %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Đồ của tôi · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Phối với đồ của tôi</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Thời tiết</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Tùy chọn khác</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Xem set đồ: %Ln món, đúng size của bạn</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Chủ đề mới</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Chủ đề…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Làm mới</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Phối với đồ của tôi…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Số đo của tôi…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Thời tiết…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Hiện bên cạnh trang</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Gợi ý</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Gửi: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Trò chuyện với %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Đổi tên</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Tên chủ đề</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Xóa “%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Giữ lại</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Chủ đề</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Bạn</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Nhập số đo của tôi</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 dùng những món này trước, chỉ thêm món mới khi còn thiếu.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Chưa có gì để phối</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Những món trong giỏ hàng và danh sách yêu thích sẽ hiện ở đây.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>Đã chọn %Ln món, đã tối đa</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Trong giỏ hàng của bạn</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Trong danh sách yêu thích</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Bạn đang ở đâu? Set đồ sẽ hợp với thời tiết hôm nay.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Phối đồ theo thời tiết</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Thành phố</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Áp dụng</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Dùng vị trí của tôi</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Bạn mặc cho dịp nào?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Kể cho %1 nghe dịp nào, món bạn yêu hay ngân sách, cô ấy sẽ phối cho bạn.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Đăng nhập để xem tin về đơn hàng và lời nhắc của bạn.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Hiện</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tất cả</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Hệ thống</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Chăm sóc khách hàng</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Thông báo</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Đăng nhập để xem thông báo của bạn</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Không có gì mới</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Đơn đang giao, món có hàng trở lại và hạ giá sẽ được báo ở đây.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Tin về đơn hàng và những món bạn theo dõi sẽ ở đây.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Chưa đọc</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Đánh dấu đã đọc tất cả</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Cài đặt thông báo</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Dự kiến %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Đơn hàng</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Đặt ngày %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Kiện hàng</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Món đồ</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Trả hàng và hoàn tiền</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Không tìm thấy đơn hàng này</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Đơn hàng mới của bạn sẽ hiện ở đây sau vài phút.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Có thể đơn này thuộc tài khoản khác.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Đăng nhập để xem đơn hàng này</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Có mã là theo dõi được kiện hàng, không cần tài khoản.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Số lượng %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Đã ẩn</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Hiện lại đơn hàng</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Ẩn đơn hàng</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Lọc đơn hàng</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Đang giao</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Đã giao</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Mọi đơn hàng của bạn đều đã ẩn</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Không có đơn nào đang giao</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Chưa có đơn nào đã giao</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Không có đơn trả hàng</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Một số đơn đang ẩn.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Hiện đơn đã ẩn</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Tất cả đơn hàng</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Đơn hàng của bạn sắp hiện ở trang này</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Chưa có đơn hàng nào</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Những gì bạn đặt sẽ hiện ở đây, kèm chặng đường tới tay bạn.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Đăng nhập để xem đơn hàng của bạn</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Đơn đang ở đâu, có những gì và cách gửi trả.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Đã ẩn khỏi danh sách đơn hàng trên máy tính này.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Bước %L1 trên %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Tóm tắt</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Địa chỉ giao hàng</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Yêu cầu trả hàng</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Kiện hàng %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Chưa có thông tin về mã này</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Kiện hàng mới có thể mất một ngày mới có trên hệ thống của hãng vận chuyển.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Mở trang của hãng vận chuyển</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Hãng vận chuyển chưa có thông tin nào.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Hành trình kiện hàng</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Tạm thời không dùng được</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Tính năng này đang tạm dừng. Bạn vui lòng thử lại sau.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Bỏ khỏi danh sách</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Món này hiện không bán</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Có thể món này đã bán hết hẳn hoặc không bán tại %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Chúng tôi sẽ gửi email khi hạ giá</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Báo tôi khi hạ giá</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln món rẻ hơn lúc bạn xem</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Chưa có món nào để theo dõi</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Hiện chưa có món nào hạ giá</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Hãy lưu hoặc xem một món, bạn sẽ thấy ở đây khi món đó hạ giá.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Những món bạn đã lưu và đã xem vẫn giữ giá như lúc bạn xem, hoặc được xem bằng loại tiền khác.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Hình ảnh</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Ảnh %L1 trên %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, ảnh %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Xem tất cả</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Không quan tâm</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Sau %Ln ngày: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Cửa hàng trả lời: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Đánh giá</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Thêm đánh giá</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Mô tả</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Điểm nổi bật</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Chi tiết</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Hỏi và đáp</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Tên</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Điện thoại</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Ngày sinh</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Chọn ngày</translation>
    </message>
    <message>
        <source>Email</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Email</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Địa chỉ bạn dùng để đăng nhập</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Quốc gia</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Lưu</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Bỏ thay đổi</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Đã lưu</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Đồng hành từ %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Bản tin</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Qua email</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Hàng mới và ưu đãi, gửi tới %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Qua tin nhắn SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Cần số điện thoại của bạn ở trên</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Đăng nhập để xem hồ sơ của bạn</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Tên, số điện thoại và những gì chúng tôi được gửi cho bạn.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Khám phá</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Dạo xem một chút, rồi bạn sẽ thấy ở đây những món phù hợp.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Đã xem gần đây</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Xóa tất cả</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Chưa có lịch sử xem</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Những món bạn xem sẽ gom lại đây để bạn dễ tìm lại.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Đăng nhập, chúng tôi sẽ gửi email khi có hàng trở lại.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Email sẽ gửi tới %1. Nhấn lần nữa nếu bạn không cần nữa.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Email sẽ gửi tới %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Phóng to ảnh %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln kết quả cho “%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Bạn đang tìm gì?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Không có kết quả cho “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Hãy kiểm tra chính tả, thử từ khái quát hơn hoặc xem mục Hàng mới.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Không có gì khớp với bộ lọc</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Bỏ bớt một hai bộ lọc để xem thêm về “%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Đăng xuất?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Giỏ hàng và danh sách yêu thích vẫn ở trên máy tính này. Đơn hàng và hạng thành viên sẽ có lại khi bạn đăng nhập.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Bảng size</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Đơn vị đo</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Sắp xếp: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Công cụ</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Hiện chưa có công cụ nào.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Mã kiện hàng hoặc đơn hàng</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Mã nằm trong email báo đã gửi hàng.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Chúng tôi không tìm thấy mã này. Hãy kiểm tra lại hoặc thử vào ngày mai: kiện hàng mới có thể mất một ngày mới có thông tin.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Theo dõi</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Không tìm thấy trang này</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Có thể trang đã chuyển đi hoặc thuộc phiên bản khác.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Nhấn trái tim ở một món, món đó sẽ chờ bạn ở đây. Chúng tôi cũng canh giá giúp bạn.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Tài khoản của bạn: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Đang tìm tài khoản của bạn…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Chưa có ai đăng nhập</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Đơn hàng, lời nhắc và hạng thành viên cần tài khoản. Xem và mua thì không.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Giao diện</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Màu sắc</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Theo hệ thống</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Tự đổi sáng hoặc tối theo hệ thống</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Sáng</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tối</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Khung cửa sổ của hệ thống</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Thanh tiêu đề phía trên các thẻ, như những cửa sổ khác</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tệp</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Xem</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Đi tới</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Trợ giúp</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Nội dung cuộc gọi</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Hãy nói bạn đang tìm gì, hoặc để mặc dịp nào.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Hủy cuộc gọi</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Trò chuyện</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Tiếp tục trong khung chat để nhắn thêm</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Cuộc gọi với %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Thời lượng cuộc gọi: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Hiện trong khung chat</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Đóng và tiếp tục trong khung chat</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Kết thúc cuộc gọi và đóng</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Chỉ hình ảnh</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Hiện cuộc gọi với %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Cuộc gọi với %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Mở rộng toàn trang</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Theo dõi bất cứ lúc nào trong mục Đơn hàng.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Tải lại trang này</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Thanh toán an toàn trên Shopify  ·  Giỏ hàng của bạn vẫn giữ nguyên</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Một liên kết trên trang này dẫn ra khỏi phần thanh toán, tới %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Mở trong trình duyệt</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Không thể hiện trang thanh toán ở đây</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Tiếp tục trong trình duyệt</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET chưa được cấu hình</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Chạy scripts/sync-secrets.sh trong thư mục dự án, rồi dựng lại.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Thoát</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Lịch sử xem</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Chung</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Quốc gia và loại tiền</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Ngôn ngữ của cửa hàng</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Mở món đồ bên cạnh danh sách</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Khi cửa sổ rộng, món đồ hiện ngay cạnh nơi bạn thấy nó</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Đơn vị số đo</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimet và kilôgam</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Inch và pound</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Trang chưa có tên</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Tạm dừng trình chiếu</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Phát trình chiếu</translation>
    </message>
    <message>
        <source>Space</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Space</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Không tải được ảnh này</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Khu vực và ngôn ngữ: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Khu vực và ngôn ngữ</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Ngôn ngữ</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Tìm ngôn ngữ</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Tìm quốc gia và loại tiền</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Ngôn ngữ</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Quốc gia</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Không có ngôn ngữ nào khớp với “%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Không có quốc gia nào khớp với “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Mở</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Trong cửa sổ</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Một dải thông báo ở phía trên, trong vài giây.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Trên màn hình nền</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Nơi máy tính hiện thông báo của các ứng dụng, kể cả khi không mở cửa sổ nào.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Có âm thanh</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Số đếm trên biểu tượng ứng dụng</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Số tin bạn chưa đọc.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Xem ví dụ</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Nội dung thông báo</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Sẽ không gợi ý nữa trên máy tính này.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Bảng bên</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Mở trong thẻ mới</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Đóng bảng bên</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Độ rộng của bảng bên</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Giúp cửa hàng chọn nội dung để hiện</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Cho cửa hàng biết trang và món nào được xem, cho vào giỏ hàng và mua, cũng như khi ứng dụng tắt đột ngột, không kèm tên bạn. Khi tắt, chỉ những gì thiết yếu được gửi.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Dù bật hay tắt</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Thiết yếu là những gì bạn yêu cầu</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Trang bạn mở, từ bạn tìm, giỏ hàng và đơn hàng của bạn phải tới được cửa hàng.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Những gì bạn lưu ở lại máy tính này</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Danh sách yêu thích, những gì bạn đã xem và đã tìm, cho đến khi bạn xóa.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Thông tin đăng nhập nằm trong chùm khóa</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Nếu không có chùm khóa, thông tin nằm trong tệp chỉ mình bạn đọc được. Thông tin hết hiệu lực sau 60 ngày và mỗi khi bạn đăng xuất.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Đã lưu ảnh chụp màn hình</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Không lưu được ảnh chụp màn hình</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Hãy kiểm tra thư mục Hình ảnh còn chỗ trống không.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Hiện thư mục</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Tìm kiếm hoặc dán liên kết</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Tìm bằng hình ảnh…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Âm thanh</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Cập nhật</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Các mục</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Tiếp tục với %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Đang đăng nhập…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 mở trong trình duyệt của bạn. Đăng nhập ở đó là bạn cũng đăng nhập ở đây.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Đã sao chép</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Sao chép địa chỉ</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Nếu trình duyệt không tự mở</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Không thấy gì xảy ra ở đây?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Dán liên kết cuối cùng trong trình duyệt</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Liên kết bắt đầu bằng “wrenfieldstore://”. Một số trình duyệt hiện nó trên thanh địa chỉ.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Hoàn tất đăng nhập</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Tạo tài khoản của bạn</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Đăng nhập vào tài khoản của bạn</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Cách đăng nhập</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Mã qua email</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mật khẩu</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Chúng tôi đã gửi mã tới %1. Có thể mất một phút mới tới.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Trước tiên, chúng tôi gửi mã qua email để chắc rằng địa chỉ là của bạn.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Chúng tôi gửi mã đăng nhập qua email. Bạn không cần mật khẩu.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Mã xác minh</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Gửi lại sau %L1 giây</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Gửi lại</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Gửi lại mã</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Mật khẩu (từ 6 ký tự)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Tên (không bắt buộc)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Quên mật khẩu? Hãy đăng nhập bằng mã qua email</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Gửi mã qua email</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>hoặc tiếp tục với</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micrô</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Dừng</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Thử</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Dừng thử micrô</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Thử micrô</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Mức âm thanh</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Đang dùng cho cuộc gọi.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Hãy nói gì đó: thanh này chạy theo giọng bạn. Không có gì rời khỏi máy tính này.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Cho biết giọng bạn to đến đâu. Không có gì rời khỏi máy tính này.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Loa</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 tắt tiếng micrô từ bất cứ đâu, suốt cuộc gọi.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M tắt tiếng micrô trong cửa sổ cuộc gọi.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Liên kết</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Tìm “%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Gần đây</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Đã xem và đã lưu</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Chưa có món nào để gợi ý. Nhấn Enter để tìm trong tất cả.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>để chọn</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>để đóng</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Bỏ “%1” khỏi tìm kiếm gần đây</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Ảnh: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Mở trong trình duyệt</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Viết tin nhắn</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Đính kèm ảnh hoặc PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Ảnh và PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Thả ảnh hoặc PDF vào đây</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Chúng tôi giúp gì được cho bạn?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Hỏi về đơn hàng, trả hàng hoặc size của bạn. Gửi kèm ảnh cũng rất hữu ích.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Đơn hàng của tôi đâu rồi?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Tôi muốn trả hàng</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Tôi nên chọn size nào?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Đang tải</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Đóng %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Thẻ mới bên phải</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Bỏ ghim thẻ</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Ghim thẻ</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Chuyển thẻ sang cửa sổ mới</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Mở lại thẻ đã đóng</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Đóng thẻ</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Đóng các thẻ khác</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Mở rộng thanh bên</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Thu gọn thanh bên</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Thẻ</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Thẻ mới</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Tiến</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Đã bỏ khỏi: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Cập nhật</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Kiểm tra lần cuối: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Chưa kiểm tra</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Bản LOOMSTREET này không tự cập nhật được.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET tự tìm phiên bản mới.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Hiện LOOMSTREET không tự tìm phiên bản mới.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Phiên bản mới đến từ nơi bạn đã cài. Bạn vẫn có thể kiểm tra tại đây.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Khi khởi động và mỗi sáu giờ. Bản mới được tải ngầm và cài khi bạn thoát; nếu không thể, bạn sẽ được báo.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Cửa hàng đang tạm dừng việc này. Bạn vẫn có thể kiểm tra tại đây.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Kiểm tra bản cập nhật…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Phiên bản %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Có gì mới</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Bỏ qua phiên bản này</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Khôi phục</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Đóng cửa sổ</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Kết nối an toàn tới %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Kết nối không an toàn</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Tài khoản của bạn đã bị xóa.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Bạn đã bị đăng xuất trước khi tài khoản được xóa. Hãy đăng nhập lại để xóa.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Phí giao hàng</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Miễn phí</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Thuế</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln kiện hàng</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Đã xác nhận</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Đã đóng gói</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Đã hủy</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Đang xử lý</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Đang chờ hãng vận chuyển</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Đang giao tới bạn</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Giao hàng gặp sự cố</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Đã yêu cầu trả hàng</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Đã chấp nhận trả hàng</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Đã hoàn tiền</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Đã từ chối trả hàng</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 và %Ln món khác</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Dùng tối đa %Ln ký tự.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Nhập số điện thoại, ví dụ %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Nhập ngày, ví dụ %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Nhập một ngày trong quá khứ.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Có thông tin chưa được chấp nhận. Hãy kiểm tra và thử lại.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Nhập địa chỉ email hợp lệ.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Mã này sai hoặc đã hết hạn. Hãy yêu cầu mã mới.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Bạn đã thử quá nhiều lần. Hãy đợi một phút rồi thử lại.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Email và mật khẩu không khớp. Hãy thử lại hoặc đăng nhập bằng mã qua email.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Cách đăng nhập này chưa dùng được.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Tài khoản đó không có địa chỉ email mà chúng tôi dùng được. Hãy thử cách khác.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Đã hủy đăng nhập.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Đăng nhập không thành công. Hãy thử lại.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Nhập sáu chữ số của mã.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Hãy chọn mật khẩu từ 6 ký tự.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Nhập mật khẩu của bạn. Mật khẩu có từ 6 ký tự.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Đó không phải liên kết cuối cùng của lần đăng nhập. Liên kết đúng bắt đầu bằng “wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Trung tâm trợ giúp LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Điều khoản</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Cửa sổ mới</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Ghim hoặc bỏ ghim thẻ</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Chuyển thẻ sang trái</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Chuyển thẻ sang phải</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Mở toàn trang sản phẩm ở bảng bên</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Mở thẻ mới cho sản phẩm ở bảng bên</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Chụp ảnh màn hình</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Toàn màn hình</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Về trang đầu của mục</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Thẻ tiếp theo</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Thẻ trước</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Nổi bật</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Mới nhất</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Giá: thấp đến cao</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Giá: cao đến thấp</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Bán chạy nhất</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hôm nay</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hôm qua</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Nữ</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Nam</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Cao cấp</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Túi xách</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Phụ kiện</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Từ %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Đến %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Final sale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Mới</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Chỉ còn một món</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Chỉ còn %Ln món</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Phù hợp nhất</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Món này không được trả lại</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Hãy kiểm tra size và màu trước khi đặt</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Làm riêng cho bạn</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Chỉ nhận trả khi hàng tới bị lỗi</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Làm theo đơn, nên sẽ lâu hơn</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Trong 30 ngày, chưa dùng, đủ mọi thứ đi kèm</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Giữ lại hộp, túi vải và giấy tờ</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Trong 30 ngày, đế không xước, còn hộp</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Hãy thử trong nhà trước</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Trong 30 ngày, chưa mặc, còn tag</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Trước tiên hãy chọn %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln món trong giỏ hàng của bạn</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Không áp dụng được mã này. Hãy thử lại.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1” không áp dụng cho các món trong giỏ hàng của bạn.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Bạn đã được MIỄN PHÍ giao hàng toàn cầu</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Mua thêm %1 để được MIỄN PHÍ giao hàng toàn cầu</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Đã đặt hàng. Đơn sẽ hiện trong mục Đơn hàng sau vài phút.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Đã đặt đơn hàng %1. Đơn sẽ hiện trong mục Đơn hàng sau vài phút.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln món  ·  đã gửi email xác nhận cho bạn</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Trang tải quá lâu.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Trang này dẫn ra khỏi phần thanh toán.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Trang đã ngừng hoạt động.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Không mở được trang thanh toán. Hãy thử lại.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Rẻ hơn %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>công sở</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>buổi hẹn hò</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>tiệc tùng</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>tiệc cưới</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>kỳ nghỉ</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>chuyến đi</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>mỗi ngày</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>cuối tuần</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>ngày đi học</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>buổi phỏng vấn</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>lễ tốt nghiệp</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>lễ hội</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>ngày đi biển</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>đêm đi chơi</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>bữa brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>phòng gym</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>sự kiện trang trọng</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Hàng mới về</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Theo những gì bạn thích</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Mới tuần này</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Mới tuần này</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Tuyển chọn kỹ</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Mới tuần này · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Theo những gì bạn thích</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Người giống bạn rất thích</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Theo những gì bạn đang xem</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Đang thịnh hành</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Khớp với tìm kiếm: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Đúng gu của bạn: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Dành cho %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Chọn theo phong cách %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>ngọt ngào</translation>
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
        <translation>thanh lịch</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>tối giản</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>lãng mạn</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>đường phố</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>gothic</translation>
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
        <translation>Pháp</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>cá tính</translation>
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
        <translation>thường ngày</translation>
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
        <translation>lễ hội</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>cổ điển</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>thể thao</translation>
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
        <translation>Hàn Quốc</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>Nhật Bản</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>Tân Trung Hoa</translation>
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
        <translation>gợi cảm</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>dễ thương</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>ngầu</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>nữ tính</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>phi giới tính</translation>
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
        <translation>trang trọng</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>lộng lẫy</translation>
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
        <translation>cao bồi</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>nghỉ dưỡng</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>Trang chủ</translation>
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
        <translation>Hộp thư</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Bạn đã thử quá nhiều lần. Hãy đợi một lát rồi thử lại.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Phiên của bạn đã hết hạn. Hãy đăng nhập lại.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Nhập địa chỉ email của bạn.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Có thông tin chưa đúng. Hãy kiểm tra và thử lại.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET đang gặp sự cố. Hãy thử lại sau ít phút.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Chưa được rồi. Hãy thử lại.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Nhận được phản hồi bất thường. Hãy thử lại.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Không kết nối được với LOOMSTREET. Hãy thử lại.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Ứng dụng thiếu phần cấu hình.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Yêu cầu mất quá nhiều thời gian. Hãy thử lại.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Còn %Ln thông báo đang chờ trong hộp thư của bạn.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Thông báo hệ thống</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Tin về tài khoản và dịch vụ</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Tin về đơn hàng</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Đơn đã xác nhận, đã gửi và đã giao</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Hoàn tiền và trả hàng</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Tiền đã hoàn và tin về trả hàng</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Phản hồi từ chăm sóc khách hàng</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Khi chăm sóc khách hàng trả lời bạn</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Món bạn nhờ báo đã có hàng trở lại</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Món đã lưu hoặc đã xem hạ giá</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Hoạt động trên Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Lượt thích, bình luận, người theo dõi mới và tin nhắn</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Đổi hạng, điểm và phiếu ưu đãi mới</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Khuyến mãi và sự kiện</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Đợt sale, hàng mới và sự kiện của cửa hàng</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Đã gửi tệp đính kèm</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Đã đặt hàng</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Đơn hàng của bạn đã được xác nhận. Đơn sẽ hiện trong mục Đơn hàng sau vài phút.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Đơn hàng %1 đã được xác nhận. Đơn sẽ hiện trong mục Đơn hàng sau vài phút.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET không tự cập nhật được</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Nhấp “Cập nhật” ở phía trên cửa sổ để cài phiên bản mới từ ảnh đĩa.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Xem trước thông báo</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Tin mới về đơn hàng và phản hồi từ chăm sóc khách hàng sẽ hiện ở đây.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Tủ đồ</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Mọi món bạn có, ở một nơi</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Phòng phối đồ</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Ghép các món và ngắm thành một bộ</translation>
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
        <translation>Những bộ đồ bạn đã giữ</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Ý tưởng phối đồ</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Cách mặc mới cho đồ trong tủ của bạn</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Tư vấn size</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Số đo của bạn và size vừa vặn</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Tìm bằng hình ảnh</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Tìm món đồ qua ảnh</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>So sánh</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Tối đa bốn món cạnh nhau</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Đang kiểm tra bản cập nhật…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Bạn đang dùng bản mới nhất</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Đang tải LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Đang kiểm tra tệp tải về…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Đang cài LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Không kiểm tra được bản cập nhật</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Không tải được bản cập nhật</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Sẵn sàng cài đặt</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Cài bản cập nhật</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 đã sẵn sàng cài đặt</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 là phiên bản mới nhất.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET sẽ đóng và được thay bằng phiên bản mới.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Đã tải xong. Mở lại ứng dụng để hoàn tất, hoặc bản mới sẽ được cài khi bạn thoát lần tới.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Trong cửa sổ vừa mở, kéo LOOMSTREET vào “Ứng dụng” và chọn “Thay thế”. Sau đó mở lại LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET không tự thay thế được trên máy tính này. Hãy cài phiên bản mới từ ảnh đĩa. Việc này chỉ mất vài giây.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Phiên bản bạn đang dùng không còn được hỗ trợ.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Đã tải bản cập nhật. Mở lại LOOMSTREET để hoàn tất, hoặc bản mới sẽ được cài khi bạn thoát lần tới.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Không kiểm tra được bản cập nhật. Hãy kiểm tra kết nối rồi thử lại.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Tải xuống không thành công (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Tệp tải về bị thiếu hoặc bị thay đổi trên đường truyền. Hãy thử lại.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Không đọc được tệp đã tải.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Tệp tải về không có chữ ký của LOOMSTREET nên không được mở.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Tải về và cài đặt</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Mở lại để cập nhật</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Mở ảnh đĩa</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Có vẻ bạn đang ngoại tuyến.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira phản hồi quá lâu.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Bạn gửi tin nhắn nhanh quá. Hãy đợi một lát.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Không gửi được tin nhắn với nội dung này.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET đang gặp sự cố.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Không kết nối được với LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Chọn size cho %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Vừa hết hàng nên không thêm được: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Không mở được trang thanh toán. Hãy kiểm tra kết nối rồi thử lại.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Chiều cao hoặc cân nặng có vẻ chưa đúng. Hãy kiểm tra số và đơn vị.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Có một số đo có vẻ chưa đúng. Hãy kiểm tra lại hoặc để trống.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Rộng</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Ôm</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Vừa</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Phối món này giúp tôi: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Tin nhắn này chưa được xác nhận. Bạn có thể thử lại.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Cuộc trò chuyện đã cập nhật</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira đang trả lời</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira đang trả lời. Lát nữa bạn có thể gửi những tin này.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Các chủ đề được lưu trên máy tính này. Mira vẫn nhớ những gì bạn và cô ấy đã trò chuyện.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Giúp tôi tìm một món</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Phối đồ từ tủ của tôi</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Tối nay mặc gì</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET không được phép xem vị trí của bạn. Hãy nhập thành phố.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Không tìm thấy vị trí của bạn. Hãy nhập thành phố.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Không tìm thấy thành phố đó. Hãy thử một thành phố lớn hơn gần đấy.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira chưa thể bắt máy lúc này. Hãy thử lại sau giây lát.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira đang bận một cuộc gọi khác. Hãy thử lại sau một phút.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Đường truyền hơi chập chờn. Bạn nói lại được không?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Mất kết nối. Hãy gọi lại để nói tiếp.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Quyền dùng micrô đang tắt. Hãy bật trong Cài đặt hệ thống › Quyền riêng tư &amp; Bảo mật › Micrô, rồi gọi lại.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Không mở được micrô. Hãy kiểm tra đã kết nối micrô chưa, rồi gọi lại.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Tắt tiếng micrô trong cuộc gọi</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Đã thêm vào giỏ hàng của bạn</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Đã thêm %1 vào giỏ hàng của bạn</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Không thêm được. Hãy thử từ trang sản phẩm.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Đang đưa bạn tới đó…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Đang mở %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Mặc định của hệ thống</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Chưa kết nối</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Áo khoác</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Áo</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Quần và chân váy</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Váy đầm</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Giày</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Đồ phối thêm</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Dễ chịu</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Nắng</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Mây rải rác</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Nhiều mây</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Sương mù</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Mưa phùn</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Mưa</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Tuyết</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Mưa rào</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Mưa giông</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Tệp này không còn nữa.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Không đọc được tệp này.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Tệp này trống.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Tệp này lớn hơn 10 MB. Hãy chọn tệp nhỏ hơn.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Chỉ gửi được ảnh và tệp PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Tin nhắn này có thể chưa tới.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Đã ẩn</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Đang giao</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Đã giao</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Nhắn cho Chăm sóc khách hàng</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Trò chuyện với Chăm sóc khách hàng</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
