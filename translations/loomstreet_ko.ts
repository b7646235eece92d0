<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>현재 위치</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>전체 페이지로 열기</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>보내는 중…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>접기</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>모두 보기</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter는 보내기, Shift+Enter는 줄 바꿈</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>보내기</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 삭제</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>연도 선택으로 돌아가기</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>이후</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>펼쳐짐</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>접힘</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>최신으로 이동</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>새 메시지 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>오프라인 상태인 것 같아요. 연결을 확인하고 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>비밀번호 숨기기</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>비밀번호 보기</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, 기존 가격 %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>품절</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>처리 중</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>위시리스트에서 삭제</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>위시리스트에 담기</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, 품절</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, 추천 사이즈</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>별점 5점 만점에 %L1점, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>별점 5점 만점에 %L1점</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>줄이기</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>늘리기</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>내 계정</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>로그아웃</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>옷장까지 기억해 드려요</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>계정이 없어도 모든 상품을 둘러보고 구매할 수 있어요. 계정이 있으면 택배 위치와 기다리는 아이템 소식까지 챙겨 드려요.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>로그인</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>계정 만들기</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>주문을 한곳에서</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>택배 위치도 반품도 영수증을 찾을 필요 없이</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>꼭 필요할 때 알려 드려요</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>내 사이즈 재입고나 가격 인하 소식</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>멤버십과 쿠폰</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>포인트와 등급, 그리고 혜택</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>나를 아는 간편한 결제</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>주소가 미리 입력되어 있어요</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>고객센터</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>주문, 반품, 사이즈</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>주문</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>배송 중인 주문과 지난 주문</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>배송 조회</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>운송장 번호나 주문 번호로</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>반품</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>상품 돌려보내기</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>나를 위한 추천</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>위시리스트</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>아직 담은 아이템이 없어요</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>아이템 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>알림 신청</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>재입고와 가격 인하</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>멤버십</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>내 등급과 포인트</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>쿠폰</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>결제할 때 쓸 수 있어요</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>계정</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>계정 없이</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>프로필</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>이름, 생일, 뉴스레터</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>개인정보 보호</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>스토어가 알게 되는 정보</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>이 컴퓨터에 저장됨</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>계정 삭제…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>키링이 응답하지 않아요</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>로그인 정보를 안전하게 보관하는 곳이라, 키링 없이는 로그인할 수 없어요. 잠금을 해제하고 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>재입고</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>가격 인하</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>다시 입고됐어요</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>가격이 내렸어요</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>신청 당시 %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>알림 신청 취소</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>알림 신청 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>재입고되거나 가격이 내리면 %1 주소로 이메일을 보내 드려요.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>아직 알림 신청이 없어요</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>내 사이즈가 품절이면 ‘재입고 알림 받기’를, 다른 아이템은 ‘가격 인하 알림 받기’를 눌러 보세요.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>신상품</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>로그인하고 알림 신청 보기</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>내 사이즈가 재입고되거나 가격이 내리면 알려 드려요.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>이제 관련 이메일을 보내지 않아요.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, 아이템 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>디자이너</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>디자이너 %Ln명</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>디자이너 찾기</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>첫 글자</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>그 외 디자이너</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>%1 글자로 시작하는 디자이너</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>‘%1’ 디자이너를 찾을 수 없어요</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>철자를 확인하거나 전체 목록에서 찾아보세요.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>디자이너 모두 보기</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>아직 아이템이 없어요</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>매주 새로운 아이템이 들어와요.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>둘러보기</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>리뷰 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln개 판매</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>예약 판매</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>가장 많이 선택: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>코디 도와줘</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>비교</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>위시리스트나 최근 본 아이템과 나란히</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>전 세계 무료 배송</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>%1 이상 구매 시</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>구매 전 확인하세요</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>수입 관세 포함</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>배송비는 결제 시 계산</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>재입고되면 이메일로 알려 드려요</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>재입고 알림 받기</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>담았어요</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>장바구니 담기</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>누르면 취소돼요</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>결제 화면 여는 중…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>바로 구매</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>%1 통화</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>창에서 열기</translation>
    </message>
    <message>
        <source>End</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>통화 종료</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>통화 보기</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>%1에게 전화</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>다시 전화</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>마이크 켜짐</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>마이크 음소거됨</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>전화 거는 중…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>생각 중</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>말하는 중</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>음소거됨</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>듣는 중</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>통화 종료됨</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>음소거 해제</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>할인 코드</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>장바구니를 불러오지 못했어요</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>담아 둔 상품은 그대로 있어요. 연결을 확인하고 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>장바구니가 비어 있어요</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>담은 상품이 여기에 표시돼요.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>쇼핑 계속하기</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>‘%1’ 상품을 장바구니에서 뺐어요.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>이전 장바구니가 만료되었어요. 상품 %Ln개가 담겨 있었어요.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>다시 넣기</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>%1 수량</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>장바구니에서 삭제</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>장바구니</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>장바구니</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>사이드 패널로 보기</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>소계</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>할인</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>합계</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>수입 관세 포함 · 배송비는 결제 시 계산</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>결제</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>결제 창에서 결제를 완료해 주세요. 장바구니는 그대로 유지돼요.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>구매 불가</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>컬렉션</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>최근 30일 신상품 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>이 컬렉션은 지금 볼 수 없어요</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>이름이 바뀌었거나 %1에서 판매하지 않을 수 있어요</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>조건에 맞는 상품이 없어요</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>필터를 줄이면 더 많은 상품을 볼 수 있어요.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>룩 완성하기</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>함께 입기 좋은 아이템</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>함께 사랑받는 아이템</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>이 아이템을 본 고객이 함께 봤어요</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>이런 아이템은 어때요</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>비교할 아이템 추가</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>아이템 추가</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>위시리스트와 최근 본 아이템에서</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>위시리스트에 담거나 살펴본 아이템을 여기에 추가하세요.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>‘%1’ 아이템과 비교</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>사이즈</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>소재</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>비교에서 빼기</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>계신 지역에서는 판매하지 않아요.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>표기 없음</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>%1 사이즈</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>처음으로</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>다른 사람들의 스타일</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>구경하기</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>팔로잉</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>팔로우한 디자이너 소식</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>새 소식 보기</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>옷장</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>오늘 뭐 입지?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>옷장 열기</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>내 주문과 알림 신청</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>내 멤버십</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>혜택 보기</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>내 택배 어디쯤 왔나요?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>주문 %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>주문 보기</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>가격 인하</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>관심 아이템 가격이 내렸어요</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>마음에 들면 담아 두세요</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>담은 아이템 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>위시리스트 보기</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>계정을 삭제할까요?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>프로필, 알림 신청, 멤버십, 주문 목록이 영구 삭제돼요. 배송 중인 주문은 예정대로 도착해요. 이 작업은 되돌릴 수 없어요.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>확인을 위해 이메일 주소를 입력하세요</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>계정 삭제</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>컬렉션</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>필터 모두 지우기</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>%1 찾기</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>해당하는 이름이 없어요</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>간단히 보기</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>%Ln개 모두 보기</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>최저</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>최고</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>아이템 보기</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>아이템 %Ln개 보기</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>필터 닫기</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln개 선택, %L1개까지 비교 가능</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln개 선택</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>아이템을 2~4개 선택하세요</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>최신순</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>낮은 가격순</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>높은 가격순</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>%Ln개를 모두 보셨어요</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>컬렉션: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 열기</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>사이즈 선택</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>사이즈</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>추천 사이즈: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>장바구니에 담김</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>바꾸기</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>빼기</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>아이템 %Ln개 중 %L1개</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>%1 대신</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>지금은 비슷한 아이템이 없어요.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira의 선택</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>나의 룩</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>사이즈를 고르고, 마음에 덜 드는 건 바꾸고, 이미 있는 건 빼 보세요.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>인치</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>내 신체 사이즈</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira가 이 수치로 사이즈를 찾아 드려요. 수치는 대화에 전달되고, 로그아웃할 때까지 이 컴퓨터에도 저장돼요.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>단위</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>미터법</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>야드파운드법</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>키(%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>피트</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>몸무게(%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>파운드</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>가슴둘레(%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>허리둘레(%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>엉덩이둘레(%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>모르면 비워 두세요.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>선호하는 핏</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Mira에게 보내기</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>이 컴퓨터에서 삭제</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>이 아이템으로 룩 만들기</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>사이즈 선택하고 장바구니 담기</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>%1에게 메시지 쓰기</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>%1 중심 코디</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>내 아이템 · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>내 아이템으로 코디</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>날씨</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>룩 보기: 내 사이즈로 고른 아이템 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>새 주제</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>주제…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>내 아이템으로 코디…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>내 신체 사이즈…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>날씨…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>페이지 옆에 표시</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>추천</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>보내기: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>%1 대화</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>주제 이름</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>‘%1’ 주제를 삭제할까요?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>유지</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>주제</translation>
    </message>
    <message>
        <source>You</source>
        <translation>나</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>신체 사이즈 입력하기</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1에게 맡기면 이 아이템을 먼저 쓰고, 부족한 것만 새로 더해 줘요.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>아직 코디할 아이템이 없어요</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>장바구니와 위시리스트의 아이템이 여기에 표시돼요.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln개 선택, 최대 개수예요</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>장바구니에 있음</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>위시리스트에 있음</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>어디에 계세요? 그날 날씨에 맞는 룩을 골라 드려요.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>날씨에 맞춰 코디</translation>
    </message>
    <message>
        <source>City</source>
        <translation>도시</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>내 위치 사용</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>어떤 자리에 입을 옷을 찾으세요?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>자리나 좋아하는 아이템, 예산을 %1에게 알려 주면 룩을 완성해 줘요.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>로그인하면 주문과 알림 신청 소식을 볼 수 있어요.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>고객센터</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>로그인하고 알림 보기</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>새 알림이 없어요</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>배송 소식, 재입고, 가격 인하를 여기에서 알려 드려요.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>주문과 관심 아이템 소식이 여기에 표시돼요.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>읽지 않음</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>모두 읽음으로 표시</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>알림 설정</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>도착 예정: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>주문</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>주문일: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>택배</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>아이템</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>반품 및 환불</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>이 주문을 찾을 수 없어요</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>새 주문은 몇 분 뒤 여기에 표시돼요.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>다른 계정의 주문일 수 있어요.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>로그인하고 주문 보기</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>운송장 번호가 있으면 계정 없이도 배송을 조회할 수 있어요.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>수량 %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>숨김</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>주문 다시 표시</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>주문 숨기기</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>표시할 주문</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>배송 중</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>배송 완료</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>모든 주문이 숨겨져 있어요</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>배송 중인 주문이 없어요</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>아직 배송 완료된 주문이 없어요</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>반품 내역이 없어요</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>일부 주문이 숨겨져 있어요.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>숨긴 주문 보기</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>모든 주문</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>주문이 곧 여기에 표시돼요</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>아직 주문이 없어요</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>주문한 상품과 배송 상황이 여기에 표시돼요.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>로그인하고 주문 보기</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>배송 상황과 주문 상품, 반품 방법을 확인하세요.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>이 컴퓨터의 주문 목록에서 숨겼어요.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>%L2단계 중 %L1단계: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>결제 내역</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>배송지</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>반품 신청</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>택배 %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>아직 조회되지 않는 번호예요</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>새 택배는 배송사에 등록되기까지 하루 정도 걸릴 수 있어요.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>배송사 페이지 열기</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>아직 배송사에서 받은 정보가 없어요.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>배송 진행 상황</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>일시적으로 이용 불가</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>이 기능은 잠시 중단되었어요. 나중에 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>목록에서 삭제</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>이 아이템은 지금 볼 수 없어요</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>완전히 품절되었거나 %1에서 판매하지 않을 수 있어요.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>가격이 내리면 이메일로 알려 드려요</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>가격 인하 알림 받기</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>아이템 %Ln개가 보셨을 때보다 저렴해졌어요</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>아직 지켜볼 아이템이 없어요</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>지금은 가격이 내린 아이템이 없어요</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>위시리스트에 담거나 살펴본 아이템의 가격이 내리면 여기에 표시돼요.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>담거나 본 아이템의 가격이 그때와 같거나, 다른 통화로 보신 아이템이에요.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>파이널 세일</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>사진 %L1/%L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, 사진 %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>모두 보기</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>관심 없음</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>%Ln일 후: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>스토어 답변: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>리뷰</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>리뷰 더 보기</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>상품 설명</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>포인트</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>상세 정보</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>질문과 답변</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>전화번호</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>생일</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>날짜 선택</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>로그인에 사용하는 이메일 주소</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>국가</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>변경 취소</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>저장됨</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>가입일: %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>뉴스레터</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>이메일로 받기</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>신상품과 혜택 소식, 받는 주소: %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>문자로 받기</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>위에 전화번호를 입력해야 해요</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>로그인하고 프로필 보기</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>이름, 전화번호, 소식 수신 설정이에요.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>둘러보기</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>조금 둘러보시면 어울리는 아이템을 여기에 모아 드려요.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>최근 본 아이템</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>모두 지우기</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>아직 둘러본 기록이 없어요</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>살펴본 아이템이 여기에 모여서 다시 찾기 쉬워요.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>로그인하면 재입고될 때 이메일로 알려 드려요.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>%1 주소로 이메일을 보내 드려요. 더 이상 원하지 않으면 다시 누르세요.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>%1 주소로 이메일을 보내 드려요.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>사진 %L1 크게 보기</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>‘%1’ 검색 결과 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>무엇을 찾으세요?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>‘%1’ 검색 결과가 없어요</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>철자를 확인하거나, 더 넓은 단어로 검색하거나, 신상품을 둘러보세요.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>조건에 맞는 결과가 없어요</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>필터를 한두 개 빼면 ‘%1’ 결과를 더 볼 수 있어요</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>로그아웃할까요?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>장바구니와 위시리스트는 이 컴퓨터에 남아 있어요. 주문과 멤버십은 다시 로그인하면 볼 수 있어요.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>사이즈표</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>사이즈 단위</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>정렬: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>도구</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>지금은 이용할 수 있는 도구가 없어요.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>운송장 번호 또는 주문 번호</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>발송 안내 이메일에서 확인할 수 있어요.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>조회되지 않는 번호예요. 번호를 확인하거나 내일 다시 시도해 주세요. 새 택배는 등록되기까지 하루 정도 걸릴 수 있어요.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>조회</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>이 페이지는 볼 수 없어요</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>페이지가 옮겨졌거나 다른 버전의 페이지일 수 있어요.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>아이템의 하트를 누르면 여기에 담겨요. 가격 변동도 지켜봐 드려요.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>내 계정: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>계정 확인 중…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>로그인하지 않았어요</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>주문 조회, 알림 신청, 멤버십에는 계정이 필요해요. 둘러보기와 구매는 계정 없이도 할 수 있어요.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>화면 모드</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>데스크톱과 같게</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>데스크톱의 밝은 모드와 어두운 모드를 따라요</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>밝게</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>어둡게</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>데스크톱 창 테두리</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>다른 창처럼 탭 위에 제목 표시줄을 표시해요</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>View</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>이동</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>통화 자막</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>찾는 아이템이나 입을 자리를 말해 보세요.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>전화 걸기 취소</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>채팅</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>채팅으로 옮겨 글로도 이어 가기</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>%1 통화, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>통화 시간: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>채팅에서 보기</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>작게 보기</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>닫고 채팅으로 이어 가기</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>통화 종료하고 닫기</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>화면만 보기</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>크게 보기</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>%1 통화 보기</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>%1 통화 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>전체 페이지로 펼치기</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>‘주문’에서 언제든 배송을 조회할 수 있어요.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>이 페이지 새로 고침</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Shopify 보안 결제  ·  장바구니는 그대로 유지돼요</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>이 페이지의 링크를 열면 결제에서 벗어나 %1 사이트로 이동해요.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>브라우저에서 열기</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>여기에서 결제 화면을 표시할 수 없어요</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>브라우저에서 계속</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET 설정이 필요해요</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>프로젝트 폴더에서 scripts/sync-secrets.sh 파일을 실행한 뒤 다시 빌드하세요.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>둘러본 기록</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>국가와 통화</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>스토어 언어</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>목록 옆에 아이템 열기</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>창이 넓으면 아이템을 찾은 목록 옆에 표시해요</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>사이즈 단위</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>센티미터와 킬로그램</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>인치와 파운드</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>제목 없는 페이지</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>슬라이드쇼 일시 정지</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>슬라이드쇼 재생</translation>
    </message>
    <message>
        <source>Space</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Space</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>사진을 불러오지 못했어요</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>지역과 언어: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>지역과 언어</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>언어 검색</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>국가와 통화 검색</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>국가</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>‘%1’ 언어를 찾을 수 없어요</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>‘%1’ 국가를 찾을 수 없어요</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>창 안에서</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>창 위쪽에 몇 초 동안 배너를 표시해요.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>데스크톱에서</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>데스크톱 알림으로 표시해요. 열린 창이 없을 때도 볼 수 있어요.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>소리로 알리기</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>앱 아이콘에 개수 표시</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>읽지 않은 알림 개수예요.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>예시 보기</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>알림 종류</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>이 컴퓨터에서 더 이상 추천하지 않아요.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>사이드 패널</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>새 탭에서 열기</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>사이드 패널 닫기</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>사이드 패널 너비</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>스토어의 추천 개선 돕기</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>어떤 페이지와 아이템을 봤는지, 무엇을 장바구니에 담고 구매했는지, 앱이 언제 예기치 않게 종료됐는지를 이름 없이 스토어에 전달해요. 끄면 꼭 필요한 정보만 보내요.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>켜든 끄든</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>꼭 필요한 정보는 요청하신 내용이에요</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>여는 페이지, 검색, 장바구니, 주문은 스토어에 전달되어야 해요.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>보관한 내용은 이 컴퓨터에 남아요</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>위시리스트, 최근 본 아이템, 검색 기록은 지울 때까지 남아 있어요.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>로그인 정보는 키링에 있어요</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>키링이 없으면 본인만 읽을 수 있는 파일에 저장해요. 60일이 지나거나 로그아웃하면 만료돼요.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>스크린샷을 저장했어요</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>스크린샷을 저장하지 못했어요</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>사진 폴더에 공간이 있는지 확인해 주세요.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>검색하거나 링크 붙여넣기</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>이미지로 검색…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>사운드</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>섹션</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>%1 계정으로 계속</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>로그인하는 중…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>브라우저에서 %1 로그인 화면이 열려요. 그곳에서 로그인하면 여기에서도 로그인돼요.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>복사됨</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>주소 복사</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>브라우저가 저절로 열리지 않을 때</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>아무 반응이 없나요?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>브라우저에 마지막으로 표시된 링크 붙여넣기</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>‘wrenfieldstore://’로 시작해요. 일부 브라우저는 주소창에 표시해요.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>로그인 완료</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>계정 만들기</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>내 계정에 로그인</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>로그인 방법</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>이메일 코드</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>비밀번호</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>%1 주소로 코드를 보냈어요. 도착까지 1분 정도 걸릴 수 있어요.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>본인 주소인지 확인하기 위해 먼저 이메일로 코드를 보내 드려요.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>로그인할 코드를 이메일로 보내 드려요. 비밀번호는 필요 없어요.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>인증 코드</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>%L1초 후 다시 보내기</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>다시 보내기</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>코드 다시 보내기</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>비밀번호(6자 이상)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>이름(선택)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>비밀번호를 잊으셨나요? 이메일 코드로 로그인</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>이메일로 코드 받기</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>또는 다음으로 계속</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>마이크</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>테스트</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>마이크 테스트 중지</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>마이크 테스트</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>음량</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>통화에서 사용 중이에요.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>말해 보세요. 막대가 목소리에 따라 움직여요. 소리는 이 컴퓨터 밖으로 나가지 않아요.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>목소리 크기를 보여 줘요. 소리는 이 컴퓨터 밖으로 나가지 않아요.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>스피커</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>통화 중에는 어디에서든 %1 키로 마이크를 음소거할 수 있어요.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>통화 창에서는 M 키로 마이크를 음소거할 수 있어요.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>링크</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>‘%1’ 검색</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>최근 검색</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>본 아이템과 담은 아이템</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>추천할 아이템이 없어요. Enter를 누르면 전체에서 검색해요.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>최근 검색에서 ‘%1’ 삭제</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>사진: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>브라우저에서 열림</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>메시지 쓰기</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>사진이나 PDF 첨부</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>사진 및 PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>사진이나 PDF를 여기에 놓으세요</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>무엇을 도와드릴까요?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>주문, 반품, 사이즈 무엇이든 물어보세요. 사진을 보내셔도 좋아요.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>제 주문은 어디쯤 왔나요?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>반품하고 싶어요</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>어떤 사이즈가 좋을까요?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>불러오는 중</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 닫기</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>오른쪽에 새 탭</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>탭 고정 해제</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>탭 고정</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>탭을 새 창으로 이동</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>닫은 탭 다시 열기</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>탭 닫기</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>다른 탭 닫기</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>사이드바 펼치기</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>사이드바 접기</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>탭</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>새 탭</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>%1에서 삭제했어요</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>마지막 확인: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>아직 확인하지 않음</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>이 LOOMSTREET는 자동으로 업데이트할 수 없어요.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET가 새 버전을 자동으로 확인해요.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>지금은 LOOMSTREET가 새 버전을 자동으로 확인하지 않아요.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>새 버전은 앱을 받은 곳에서 제공돼요. 여기에서 확인할 수도 있어요.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>시작할 때와 6시간마다 확인해요. 새 버전은 백그라운드에서 내려받아 종료할 때 설치하고, 설치할 수 없으면 알려 드려요.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>스토어에서 일시 중지했어요. 여기에서 확인할 수는 있어요.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>새로운 기능</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>이 버전 건너뛰기</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>이전 크기로 복원</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>창 닫기</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>%1 보안 연결</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>안전하지 않은 연결</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>계정이 삭제되었어요.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>계정을 삭제하기 전에 로그아웃되었어요. 삭제하려면 다시 로그인해 주세요.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>배송비</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>무료</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>세금</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>택배 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>주문 확인</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>포장 완료</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>진행 중</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>배송사 인수 대기 중</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>배달 중</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>배송 문제</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>반품 신청됨</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>반품 승인됨</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>환불 완료</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>반품 거절됨</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 외 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>최대 %Ln자까지 입력할 수 있어요.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>전화번호를 입력하세요(예: %1).</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>날짜를 입력하세요(예: %1).</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>지난 날짜를 입력하세요.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>입력한 내용 중 일부를 사용할 수 없어요. 확인하고 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>올바른 이메일 주소를 입력하세요.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>코드가 틀렸거나 만료되었어요. 새 코드를 요청해 주세요.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>시도 횟수가 너무 많아요. 1분 뒤에 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>이메일과 비밀번호가 일치하지 않아요. 다시 시도하거나 이메일 코드로 로그인하세요.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>이 로그인 방법은 아직 사용할 수 없어요.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>이 계정에는 사용할 수 있는 이메일 주소가 없어요. 다른 방법을 이용해 주세요.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>로그인이 취소되었어요.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>로그인하지 못했어요. 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>코드 6자리를 입력하세요.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>6자 이상의 비밀번호를 정해 주세요.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>비밀번호를 입력하세요. 6자 이상이에요.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>로그인을 마칠 때 표시된 링크가 아니에요. ‘wrenfieldstore://’로 시작하는 링크예요.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREET 도움말 센터</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>약관</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>새 창</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>탭 고정 또는 해제</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>탭을 왼쪽으로 이동</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>탭을 오른쪽으로 이동</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>사이드 패널 상품을 전체 페이지로 열기</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>사이드 패널 상품을 새 탭에서 열기</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>스크린샷 찍기</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>전체 화면</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>섹션 홈으로 이동</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>다음 탭</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>이전 탭</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>추천순</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>최신순</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>낮은 가격순</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>높은 가격순</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>판매순</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>어제</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>여성</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>남성</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>럭셔리</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>가방</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>액세서리</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>%1 이상</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>%1 이하</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>파이널 세일</translation>
    </message>
    <message>
        <source>New</source>
        <translation>신상</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>마지막 1개</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>%Ln개 남음</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>관련도순</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>이 아이템은 반품할 수 없어요</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>주문 전에 사이즈와 색상을 확인하세요</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>주문 제작</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>하자가 있을 때만 반품 가능</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>주문 후 제작하므로 시간이 더 걸려요</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>30일 이내, 미사용, 구성품 모두 포함</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>상자, 더스트 백, 보증서를 보관하세요</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>30일 이내, 밑창 손상 없이 상자 포함</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>먼저 실내에서 신어 보세요</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>30일 이내, 미착용, 택 부착</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>먼저 %1 옵션을 선택해 주세요.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>장바구니에 상품 %Ln개</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>코드를 적용하지 못했어요. 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>‘%1’ 코드는 장바구니 상품에 적용할 수 없어요.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>전 세계 무료 배송 혜택을 받았어요</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>%1 더 담으면 전 세계 무료 배송</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>주문이 완료됐어요. 몇 분 뒤 ‘주문’에 표시돼요.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>주문 %1 접수가 완료됐어요. 몇 분 뒤 ‘주문’에 표시돼요.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>아이템 %Ln개  ·  확인 이메일을 보냈어요</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>페이지를 불러오는 데 너무 오래 걸렸어요.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>결제에서 벗어나는 페이지예요.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>페이지가 멈췄어요.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>결제를 시작하지 못했어요. 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>%1 저렴해졌어요</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>출근룩</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>데이트룩</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>파티룩</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>하객룩</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>바캉스룩</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>여행룩</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>데일리룩</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>주말룩</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>등교룩</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>면접룩</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>졸업식룩</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>페스티벌룩</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>비치룩</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>나이트룩</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>브런치룩</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>운동룩</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>포멀룩</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>새로 들어온 아이템</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>내 취향에 맞춘 추천</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>이번 주 신상품</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>이번 주 신상품</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>엄선한 아이템</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>이번 주 신상품 · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>내 취향에 맞춘 추천</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>비슷한 취향의 고객이 좋아해요</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>둘러본 아이템 기반 추천</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>지금 인기</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>‘%1’ 검색과 일치</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>%1 취향이라면</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>%1 추천</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>%1 스타일 추천</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>스위트</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>빈티지</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>엘레강스</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>미니멀</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>로맨틱</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>스트리트</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>고딕</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>프레피</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>프렌치</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>엣지</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>펑크</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>코케트</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>캐주얼</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>보헤미안</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>페스티벌</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>클래식</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>스포티</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>시크</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>그런지</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>한국풍</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>일본풍</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>뉴 차이니즈</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>올드머니</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>콰이어트 럭셔리</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>다크 아카데미아</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>발레코어</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>코티지코어</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>섹시</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>큐트</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>쿨</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>페미닌</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>젠더리스</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>워크웨어</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>포멀</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>글램</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>아방가르드</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>유틸리티</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>웨스턴</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>리조트</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>홈</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>세일</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>알림함</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>시도 횟수가 너무 많아요. 잠시 후 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>로그인이 만료되었어요. 다시 로그인해 주세요.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>이메일 주소를 입력하세요.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>입력한 정보가 올바르지 않은 것 같아요. 확인하고 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>지금 LOOMSTREET에 문제가 있어요. 잠시 후 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>처리하지 못했어요. 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>예상하지 못한 응답이 왔어요. 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET에 연결하지 못했어요. 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>앱 설정 정보가 없어요.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>요청 시간이 초과되었어요. 다시 시도해 주세요.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>알림함에 알림 %Ln개가 더 있어요.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>시스템 알림</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>계정과 서비스 소식</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>주문 소식</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>주문 확인, 발송, 배송 완료</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>환불 및 반품</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>환불 완료와 반품 진행 소식</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>고객센터 답변</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>고객센터에서 답변이 왔을 때</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>기다리던 아이템이 다시 들어왔을 때</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>담거나 본 아이템의 가격이 내렸을 때</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Vessa 활동</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>좋아요, 댓글, 새 팔로워, 메시지</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>등급 변경, 포인트, 새 쿠폰</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>프로모션과 이벤트</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>세일, 신상품 출시, 스토어 이벤트</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>첨부 파일을 보냈어요</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>주문 완료</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>주문이 확인됐어요. 몇 분 뒤 ‘주문’에 표시돼요.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>주문 %1 확인이 완료됐어요. 몇 분 뒤 ‘주문’에 표시돼요.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET를 업데이트하지 못했어요</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>창 위쪽의 ‘업데이트’를 클릭해 디스크 이미지에서 새 버전을 설치하세요.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>알림 미리 보기</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>새 주문 소식과 고객센터 답변이 여기에 표시돼요.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>옷장</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>가진 모든 아이템을 한곳에</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>코디 스튜디오</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>아이템을 조합해 한눈에 보기</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>룩북</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>저장한 코디</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>코디 아이디어</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>옷장 속 아이템을 새롭게 입는 법</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>사이즈 추천</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>내 신체 사이즈와 꼭 맞는 사이즈</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>이미지로 검색</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>사진으로 아이템 찾기</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>비교</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>최대 4개 아이템을 나란히</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>업데이트 확인 중…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>최신 버전이에요</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 다운로드 중</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>다운로드 파일 확인 중…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 설치 중</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>업데이트를 확인하지 못했어요</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>업데이트를 다운로드하지 못했어요</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>설치 준비 완료</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>업데이트 설치</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 설치 준비 완료</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 버전이 최신이에요.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET를 닫고 새 버전으로 교체해요.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>다운로드했어요. 다시 실행하면 완료되고, 아니면 다음에 종료할 때 설치돼요.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>방금 열린 창에서 LOOMSTREET를 ‘응용 프로그램’으로 드래그하고 ‘대치’를 선택하세요. 그런 다음 LOOMSTREET를 다시 여세요.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>이 컴퓨터에서 LOOMSTREET를 자동으로 교체하지 못했어요. 디스크 이미지에서 새 버전을 설치해 주세요. 몇 초면 끝나요.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>사용 중인 버전은 더 이상 지원되지 않아요.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>업데이트를 다운로드했어요. LOOMSTREET를 다시 실행하면 완료되고, 아니면 다음에 종료할 때 설치돼요.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>업데이트를 확인하지 못했어요. 연결을 확인하고 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>다운로드하지 못했어요(HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>다운로드가 완전하지 않거나 도중에 변경되었어요. 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>다운로드한 파일을 읽지 못했어요.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>LOOMSTREET 서명이 없는 파일이라 열지 않았어요.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>다운로드하고 설치</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>다시 실행해 업데이트</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>디스크 이미지 열기</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>오프라인 상태인 것 같아요.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira의 응답이 너무 오래 걸렸어요.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>메시지를 너무 빨리 보내고 있어요. 잠시 기다려 주세요.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>이 메시지는 그대로 보낼 수 없었어요.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>지금 LOOMSTREET에 문제가 있어요.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET에 연결하지 못했어요.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>사이즈를 선택하세요: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>그사이 품절되어 담지 못했어요: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>결제를 시작하지 못했어요. 연결을 확인하고 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>키나 몸무게가 올바르지 않은 것 같아요. 숫자와 단위를 확인해 주세요.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>올바르지 않은 수치가 있는 것 같아요. 확인하거나 비워 두세요.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>루즈 핏</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>슬림 핏</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>레귤러 핏</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>코디 도와줘: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>전송이 확인되지 않은 메시지예요. 다시 시도할 수 있어요.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>대화가 최신 상태예요</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira가 답장하는 중</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira가 답장하고 있어요. 잠시 후 보낼 수 있어요.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>주제는 이 컴퓨터에 저장돼요. 모든 주제에서 함께 쓰는 대화 기억은 Mira가 보관해요.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>아이템 찾는 것 도와줘</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>내 옷장으로 코디해 줘</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>오늘 밤 뭐 입지</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET에 위치 권한이 없어요. 대신 도시를 입력해 주세요.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>위치를 찾지 못했어요. 대신 도시를 입력해 주세요.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>찾을 수 없는 도시예요. 가까운 큰 도시를 입력해 보세요.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira가 지금 전화를 받을 수 없어요. 잠시 후 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira가 다른 통화 중이에요. 1분 뒤에 다시 시도해 주세요.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>통화가 잠깐 끊겼어요. 다시 말해 주시겠어요?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>통화가 끊어졌어요. 다시 전화하면 이어서 이야기할 수 있어요.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>마이크 접근이 꺼져 있어요. 시스템 설정 › 개인정보 보호 및 보안 › 마이크에서 켠 뒤 다시 전화해 주세요.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>마이크를 시작하지 못했어요. 연결을 확인한 뒤 다시 전화해 주세요.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>통화 중 마이크 음소거</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>장바구니에 담았어요</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>‘%1’ 상품을 장바구니에 담았어요</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>담지 못했어요. 상품 페이지에서 시도해 주세요.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>이동하는 중…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 여는 중</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>연결되지 않음</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>아우터</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>상의</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>하의</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>원피스</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>신발</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>소품</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>온화함</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>맑음</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>구름 조금</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>흐림</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>안개</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>이슬비</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>비</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>눈</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>소나기</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>뇌우</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>파일이 더 이상 없어요.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>파일을 읽지 못했어요.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>빈 파일이에요.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>10MB보다 큰 파일이에요. 더 작은 파일을 선택해 주세요.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>사진과 PDF 파일만 보낼 수 있어요.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>이 메시지가 도착하지 않았을 수 있어요.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>숨김</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>배송 중</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>배송 완료</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>고객센터에 메시지 쓰기</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>고객센터 대화</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>‘%1’</translation>
    </message>
</context>
</TS>
