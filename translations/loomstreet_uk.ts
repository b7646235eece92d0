<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Ви тут</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Відкрити повну сторінку</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Надсилання…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Згорнути</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Показати все</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter — надіслати, Shift+Enter — новий рядок</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Надіслати</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Спробувати ще раз</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Прибрати</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Прибрати: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Раніше</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Назад до вибору року</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Пізніше</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Розгорнуто</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Згорнуто</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>До останніх</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln нове повідомлення</numerusform>
            <numerusform>%Ln нові повідомлення</numerusform>
            <numerusform>%Ln нових повідомлень</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Схоже, немає з’єднання з інтернетом. Перевірте його та спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Сховати пароль</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Показати пароль</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, раніше %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Розпродано</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Виконується</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Прибрати з обраного</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Додати в обране</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Пошук</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далі</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, розпродано</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, радимо вам</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Оцінка %L1 із 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Оцінка %L1 із 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Менше</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Більше</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Скасувати дію</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Ваш акаунт</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Вийти</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Ваш гардероб завжди з вами</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Дивитися й купувати тут можна й без акаунта. А з ним магазин знає, де ваші посилки й на що ви чекаєте.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Увійти</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Створити акаунт</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Усі замовлення в одному місці</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Де кожна посилка — і повернення без пошуку чека</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Звістка, коли це важливо</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Ваш розмір знову є або ціна знизилася</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Клуб і купони</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Бали, рівні та що вони дають</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Оформлення, яке вас знає</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Ваша адреса вже на місці</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Служба підтримки</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Замовлення, повернення й розміри</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Замовлення</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>У дорозі та куплене раніше</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Відстежити посилку</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>За номером посилки або замовлення</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Повернення</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Повернути покупку</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Для вас</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Обране</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Поки нічого не збережено</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln річ</numerusform>
            <numerusform>%Ln речі</numerusform>
            <numerusform>%Ln речей</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Нагадування</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Знову в наявності та нижчі ціни</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Клуб</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Ваш рівень і бали</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Купони</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Для ваших наступних замовлень</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Акаунт</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Без акаунта</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Профіль</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Ім’я, день народження й розсилки</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Приватність</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Що магазин дізнається про вас</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Зберігається на цьому комп’ютері</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Видалити акаунт…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>В’язка ключів не відповідає</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>У ній надійно зберігаються дані для входу, без неї ввійти неможливо. Розблокуйте її та спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Знову в наявності</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Зниження ціни</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Уже в продажу</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Уже дешевше</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>Ціна тоді: %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Вимкнути нагадування</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln нагадування</numerusform>
            <numerusform>%Ln нагадування</numerusform>
            <numerusform>%Ln нагадувань</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Ми напишемо на %1, коли річ знову з’явиться або подешевшає.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Нагадувань поки немає</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Якщо річ розпродано у вашому розмірі, натисніть «Повідомити про наявність». Біля будь-якої іншої — «Повідомити про зниження ціни».</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Новинки</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Увійдіть, щоб побачити нагадування</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Ми повідомимо, коли річ знову з’явиться у вашому розмірі або подешевшає.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Листи про нього не надходитимуть.</numerusform>
            <numerusform>Листи про них не надходитимуть.</numerusform>
            <numerusform>Листи про них не надходитимуть.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln річ</numerusform>
            <numerusform>%1, %Ln речі</numerusform>
            <numerusform>%1, %Ln речей</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Дизайнери</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln дизайнер</numerusform>
            <numerusform>%Ln дизайнери</numerusform>
            <numerusform>%Ln дизайнерів</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Знайти дизайнера</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистити</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Літери</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Інші дизайнери</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Дизайнери на літеру %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>За запитом «%1» дизайнерів немає</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Перевірте написання або перегляньте весь список.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Показати всіх дизайнерів</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Тут поки порожньо</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Нові речі з’являються щотижня.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Огляд</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln відгук</numerusform>
            <numerusform>%Ln відгуки</numerusform>
            <numerusform>%Ln відгуків</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>Продано: %Ln</numerusform>
            <numerusform>Продано: %Ln</numerusform>
            <numerusform>Продано: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Передзамовлення</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Найчастіше обирають: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>З чим це носити?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Порівняти</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Поруч із тим, що ви зберегли чи переглядали</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>БЕЗКОШТОВНА доставка по всьому світу</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Для замовлень від %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Варто знати</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Мито включено</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Доставка розраховується під час оформлення</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Напишемо вам, коли з’явиться</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Повідомити про наявність</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Додано</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>У кошик</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Натисніть, щоб скасувати</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Відкриваємо оформлення…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Купити зараз</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Дзвінок: %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Відкрити в окремому вікні</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Завершити</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Завершити дзвінок</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Показати дзвінок</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Подзвонити: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Подзвонити ще раз</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Мікрофон увімкнено</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Мікрофон вимкнено</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Виклик…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Думає</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Говорить</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Мікрофон вимкнено</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Слухає</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Дзвінок завершено</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Увімкнути мікрофон</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Вимкнути мікрофон</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Промокод</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Застосувати</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Не вдалося завантажити кошик</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Ваші товари на місці. Перевірте з’єднання та спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Ваш кошик порожній</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Тут з’являться товари, які ви додасте.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Продовжити покупки</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Прибрано з кошика: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Попередній кошик уже недійсний. У ньому був %Ln товар.</numerusform>
            <numerusform>Попередній кошик уже недійсний. У ньому було %Ln товари.</numerusform>
            <numerusform>Попередній кошик уже недійсний. У ньому було %Ln товарів.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Повернути</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Кількість: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Прибрати з кошика</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Сховати</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Кошик</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Кошик</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Показати бічною панеллю</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Товари</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Знижка</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Разом</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Мито включено · Доставка розраховується під час оформлення</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Оформити замовлення</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Завершіть оплату у вікні оформлення. Кошик залишиться як є.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Недоступно</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Колекція</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln новинка за останні 30 днів</numerusform>
            <numerusform>%Ln новинки за останні 30 днів</numerusform>
            <numerusform>%Ln новинок за останні 30 днів</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Ця колекція недоступна</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Можливо, її перейменовано або вона не продається в цьому регіоні: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Під ці фільтри нічого не підходить</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Приберіть один із фільтрів, щоб побачити більше.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Доповніть образ</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>З чим це поєднати</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Ще подобається</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Тим, хто переглядав цю річ</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Вам також може сподобатися</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Додати речі до порівняння</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Додати річ</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>З обраного й переглянутого</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Зберігайте речі або переглядайте їх, а потім додавайте сюди.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Порівняти: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Розміри</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Склад</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Прибрати з порівняння</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Не продається у вашому регіоні.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>не вказано</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Розміри: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>На початок</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Що носять інші</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Подивитися</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Підписки</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Новини ваших дизайнерів</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Дивитися нове</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Гардероб</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Що мені сьогодні вдягти?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Відкрити гардероб</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Ваші замовлення й нагадування</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Ваш клуб</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Дізнатися про переваги</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Де моя посилка?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Замовлення %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Переглянути замовлення</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Зниження цін</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Ваші речі подешевшали</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Зберігайте улюблене</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>Збережено %Ln річ</numerusform>
            <numerusform>Збережено %Ln речі</numerusform>
            <numerusform>Збережено %Ln речей</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Відкрити обране</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Видалити акаунт?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Профіль, нагадування, членство в клубі та список замовлень буде видалено назавжди. Замовлення, які вже в дорозі, надійдуть. Скасувати це неможливо.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Для підтвердження введіть свою адресу ел. пошти</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Видалити акаунт</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Колекції</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Фільтри</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Скинути всі фільтри</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Знайти: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Нічого не знайдено</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Показати менше</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Показати всі: %Ln</numerusform>
            <numerusform>Показати всі: %Ln</numerusform>
            <numerusform>Показати всі: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Від</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>До</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Показати речі</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Показати %Ln річ</numerusform>
            <numerusform>Показати %Ln речі</numerusform>
            <numerusform>Показати %Ln речей</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Закрити фільтри</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>Вибрано: %Ln, порівняти можна %L1</numerusform>
            <numerusform>Вибрано: %Ln, порівняти можна %L1</numerusform>
            <numerusform>Вибрано: %Ln, порівняти можна %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>Вибрано: %Ln</numerusform>
            <numerusform>Вибрано: %Ln</numerusform>
            <numerusform>Вибрано: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Виберіть від двох до чотирьох речей</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Вибрати</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Спочатку нові</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Ціна: за зростанням</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Ціна: за спаданням</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Це все: %Ln річ</numerusform>
            <numerusform>Це все: %Ln речі</numerusform>
            <numerusform>Це все: %Ln речей</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Колекція: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Відкрити: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Виберіть розмір</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Розмір</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Радимо вам: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>У кошику</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Замінити</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Вилучити</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 із %Ln речі</numerusform>
            <numerusform>%L1 із %Ln речей</numerusform>
            <numerusform>%L1 із %Ln речей</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Замість: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Схожого зараз немає.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Вибір Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Ваш образ</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Виберіть розміри, замініть те, що подобається менше, вилучіть те, що вже маєте.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>см</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>дюйми</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Ваші мірки</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>За ними Mira добирає ваші розміри. Мірки надсилаються у вашу розмову, а копія зберігається на цьому комп’ютері, доки ви не вийдете.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Одиниці</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Метричні</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Імперські</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Зріст (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>фути</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Вага (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>кг</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>фунти</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>Груди (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Талія (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Стегна (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Не знаєте — залиште порожніми.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Улюблена посадка</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Надіслати стилістці</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Видалити з цього комп’ютера</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Скласти з цим образ</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Вибрати розмір і додати в кошик</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Повідомлення для %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Образ із річчю: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Мої речі · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Образ із моїх речей</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Погода</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ще</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Переглянути образ: %Ln річ у вашому розмірі</numerusform>
            <numerusform>Переглянути образ: %Ln речі, кожна у вашому розмірі</numerusform>
            <numerusform>Переглянути образ: %Ln речей, кожна у вашому розмірі</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Нова тема</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Теми…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Оновити</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Образ із моїх речей…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Мої мірки…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Погода…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Показати поруч зі сторінкою</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Підказки</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Надіслати: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Розмова: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Перейменувати</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Назва теми</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Видалити «%1»?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Залишити</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Теми</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Ви</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Указати мої мірки</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 почне з цих речей і додасть нове лише там, де чогось бракує.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Поки немає з чого скласти образ</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Тут з’являться речі з кошика й обраного.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>Вибрано %Ln — більше не можна</numerusform>
            <numerusform>Вибрано %Ln — більше не можна</numerusform>
            <numerusform>Вибрано %Ln — більше не можна</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>У вашому кошику</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>У вашому обраному</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Де ви? Образ буде за погодою.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Дібрати образ за погодою</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Місто</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Вибрати</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Визначити моє розташування</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Для якої нагоди вбираємося?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Розкажіть про нагоду, улюблену річ чи бюджет — %1 складе образ.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Увійдіть, щоб бачити новини про замовлення й нагадування.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показати</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Усі</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Служба підтримки</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Сповіщення</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Увійдіть, щоб побачити сповіщення</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Нічого нового</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Тут будуть новини про замовлення в дорозі, речі знову в наявності та нижчі ціни.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Тут буде все про ваші замовлення та речі, за якими ви стежите.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Не прочитано</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Позначити все як прочитане</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Налаштування сповіщень</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Очікується: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Замовлення</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Дата замовлення: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Посилка</numerusform>
            <numerusform>Посилки</numerusform>
            <numerusform>Посилки</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Речі</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Повернення</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Цього замовлення тут немає</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Нове замовлення з’явиться тут за кілька хвилин.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Можливо, його оформлено з іншого акаунта.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Увійдіть, щоб побачити це замовлення</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Посилку можна відстежити за номером і без акаунта.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Кількість: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Приховане</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Знову показувати замовлення</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Приховати замовлення</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Які замовлення</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>У дорозі</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Доставлено</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Усі ваші замовлення приховано</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>У дорозі нічого немає</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Поки нічого не доставлено</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Повернень немає</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Деякі з них приховано.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Показати приховані замовлення</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Усі замовлення</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Ваше замовлення невдовзі з’явиться тут</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Замовлень поки немає</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Тут видно, що ви замовили й де зараз ваше замовлення.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Увійдіть, щоб побачити замовлення</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Де вони зараз, що в них і як оформити повернення.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Приховано із замовлень на цьому комп’ютері.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Крок %L1 із %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Підсумок</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Адреса доставки</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Оформити повернення</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Посилка %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Цього номера поки ніхто не знає</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Перевізник може дізнатися про нову посилку лише наступного дня.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Відкрити сторінку перевізника</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Перевізник ще нічого про неї не повідомив.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Історія посилки</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Тимчасово недоступно</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Цю функцію призупинено. Зазирніть сюди пізніше.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Прибрати зі списку</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Ця річ недоступна</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Можливо, її розпродано назавжди або вона не продається в цьому регіоні: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Напишемо вам, коли подешевшає</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Повідомити про зниження ціни</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln річ подешевшала після вашого перегляду</numerusform>
            <numerusform>%Ln речі подешевшали після вашого перегляду</numerusform>
            <numerusform>%Ln речей подешевшали після вашого перегляду</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Поки немає за чим стежити</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Зараз знижень цін немає</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Збережіть річ або просто перегляньте її — і тут побачите, коли вона подешевшає.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Збережені й переглянуті речі коштують стільки ж, скільки під час перегляду, або ви бачили їх в іншій валюті.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Фінальний розпродаж</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Фото %L1 із %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, фото %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Дивитися всі</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Не цікаво</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Через %Ln день: %1</numerusform>
            <numerusform>Через %Ln дні: %1</numerusform>
            <numerusform>Через %Ln днів: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Відповідь магазину: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Відгуки</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Ще відгуки</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Опис</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Головне</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Деталі</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Запитання й відповіді</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ім’я</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Телефон</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>День народження</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Виберіть дату</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Ел. пошта</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Адреса, з якою ви входите</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Країна</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Зберегти</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Скасувати зміни</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Збережено</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>З нами з %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Розсилки</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Ел. поштою</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Новинки й пропозиції, на %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Через SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Потрібен номер телефону вище</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Увійдіть, щоб побачити профіль</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Ваше ім’я, телефон і те, що вам можна надсилати.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Дивитися</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Перегляньте щось, і тут з’явиться те, що до цього пасує.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Нещодавно переглянуте</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Очистити все</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Переглядів поки немає</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Тут збираються речі, які ви переглядали, щоб до них було легко повернутися.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Увійдіть, і ми напишемо, коли річ знову з’явиться.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Лист надійде на %1. Якщо вже не потрібно, натисніть ще раз.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Лист надійде на %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Збільшити фото %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>«%1»: %Ln результат</numerusform>
            <numerusform>«%1»: %Ln результати</numerusform>
            <numerusform>«%1»: %Ln результатів</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Що ви шукаєте?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>За запитом «%1» нічого не знайдено</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Перевірте написання, спробуйте ширше слово або зазирніть у «Новинки».</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Під ці фільтри нічого не підходить</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Приберіть один-два фільтри, щоб побачити більше за запитом «%1»</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Вийти з акаунта?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Кошик і обране залишаться на цьому комп’ютері. Замовлення й клуб знову будуть доступні після входу.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Таблиця розмірів</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Одиниці розмірів</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Сортування: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Інструменти</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Зараз інструментів немає.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Номер посилки або замовлення</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Його вказано в листі про відправлення.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Ми не знаємо цього номера. Перевірте його або спробуйте завтра: нова посилка може з’явитися лише наступного дня.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Відстежити</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Ця сторінка недоступна</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Можливо, її перенесено або вона з’явиться в іншій версії.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Натисніть на сердечко біля речі, і вона чекатиме на вас тут. За її ціною ми теж стежимо.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Ваш акаунт: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Шукаємо ваш акаунт…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Вхід не виконано</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Акаунт потрібен для замовлень, нагадувань і клубу. Дивитися й купувати можна без нього.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Зовнішній вигляд</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Кольори</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Як у системі</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Світлі або темні — слідом за системою</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Світлі</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Темні</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Системна рамка вікна</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Рядок заголовка над вкладками, як в інших вікон</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Вигляд</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Перехід</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Довідка</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Субтитри</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Скажіть, що ви шукаєте або для якої нагоди.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Скасувати дзвінок</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Чат</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Перейти в чат, щоб і писати</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Дзвінок: %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Тривалість дзвінка: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Показати в чаті</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Зменшити</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Закрити й продовжити в чаті</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Завершити дзвінок і закрити</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Лише зображення</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Збільшити</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Показати дзвінок: %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Дзвінок: %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Розгорнути на всю сторінку</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Стежте за ним будь-коли в розділі «Замовлення».</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Оновити сторінку</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Безпечна оплата через Shopify  ·  Кошик залишиться як є</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Посилання на цій сторінці веде за межі оформлення: %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Відкрити в браузері</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Оформлення не можна показати тут</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Продовжити в браузері</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET не налаштовано</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Запустіть scripts/sync-secrets.sh у теці проєкту й виконайте збирання знову.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти з програми</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Історія переглядів</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Загальні</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Країна й валюта</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Мова магазину</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Відкривати речі поруч зі списком</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>У широких вікнах річ видно поруч із місцем, де ви її знайшли</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Одиниці вимірювання</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Сантиметри й кілограми</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Дюйми й фунти</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Сторінка без назви</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Призупинити показ слайдів</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Запустити показ слайдів</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробіл</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Зменшити</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Збільшити</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Не вдалося завантажити це фото</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Регіон і мова: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Регіон і мова</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Мова</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Пошук мови</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Пошук країни чи валюти</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Мови</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Країни</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>За запитом «%1» мов немає</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>За запитом «%1» країн немає</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Відкрити</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>У вікні</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Банер угорі вікна на кілька секунд.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>На робочому столі</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Там, де система показує сповіщення програм, навіть якщо вікна закрито.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Зі звуком</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Лічильник на значку програми</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Скільки ще не прочитано.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Показати приклад</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Про що сповіщати</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Більше не рекомендується на цьому комп’ютері.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Бічна панель</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Відкрити в новій вкладці</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Закрити бічну панель</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Ширина бічної панелі</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Допомагати магазину вирішувати, що показувати</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Магазин дізнається, які сторінки відкривають, які речі переглядають, кладуть у кошик і купують та коли програма несподівано закрилася, — без вашого імені. Якщо вимкнути, надсилається лише необхідне.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>У будь-якому разі</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Необхідне — те, про що ви просите</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Відкриті сторінки, пошукові запити, кошик і замовлення мають дійти до магазину.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Ваше залишається на цьому комп’ютері</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Обране, переглянуте й пошукові запити, доки ви їх не очистите.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Дані для входу лежать у в’язці ключів</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Якщо її немає — у файлі, який можете прочитати лише ви. Вхід діє 60 днів або доки ви не вийдете.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Знімок екрана збережено</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Не вдалося зберегти знімок екрана</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Перевірте, чи є місце в теці «Зображення».</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Показати теку</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Пошук або посилання</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Шукати за фото…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Налаштування</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Розділи</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Продовжити через %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Виконується вхід…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 відкриється в браузері. Увійдіть там, і вхід тут виконається сам.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Скопійовано</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Копіювати адресу</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Якщо браузер не відкрився сам</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Тут нічого не сталося?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Вставте посилання, на якому зупинився браузер</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Воно починається з «wrenfieldstore://». Деякі браузери показують його в адресному рядку.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Завершити вхід</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Створіть акаунт</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Увійдіть в акаунт</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Способи входу</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Код із листа</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Ми надіслали код на %1. Лист може йти близько хвилини.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Спершу надішлемо код на пошту, щоб упевнитися, що адреса ваша.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Надішлемо на пошту код для входу. Пароль не потрібен.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Код підтвердження</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Повторити через %L1 с</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Надіслати ще раз</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Надіслати код ще раз</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Пароль (щонайменше 6 символів)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Ім’я (необов’язково)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Забули пароль? Увійдіть за кодом із листа</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Надіслати код</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>або продовжити через</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Мікрофон</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Перевірити</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Припинити слухати мікрофон</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Перевірити мікрофон</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Гучність</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Мікрофон зайнятий дзвінком.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Скажіть щось: смужка рухається за голосом. Ніщо не залишає цього комп’ютера.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Показує, як гучно ви говорите. Ніщо не залишає цього комп’ютера.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Динамік</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 вимикає мікрофон звідусіль, доки триває дзвінок.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>Клавіша M вимикає мікрофон у вікні дзвінка.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Посилання</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Шукати «%1»</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Недавнє</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Переглянуте й збережене</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Нічого не знайдено. Enter — шукати серед усіх речей.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>вибрати</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>закрити</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Прибрати «%1» з недавніх запитів</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Фото: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Відкриється в браузері</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Напишіть повідомлення</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Прикріпити фото або PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Фото й PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Перетягніть сюди фото або PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Чим можемо допомогти?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Запитайте про замовлення, повернення чи розмір. Фото теж допоможуть.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Де моє замовлення?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Хочу оформити повернення</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Який розмір мені вибрати?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Завантаження</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Закрити: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Нова вкладка праворуч</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Відкріпити вкладку</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Закріпити вкладку</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Перенести вкладку в нове вікно</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Відкрити закриту вкладку</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Закрити вкладку</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Закрити інші вкладки</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Розгорнути бічне меню</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Згорнути бічне меню</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Вкладки</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Нова вкладка</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Уперед</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Прибрано зі списку: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Оновити</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Остання перевірка: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Ще не перевірялося</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Ця копія LOOMSTREET не може оновлюватися сама.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET сам шукає нові версії.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Поки LOOMSTREET не шукає нових версій сам.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Нові версії надходять звідти, звідки встановлено програму. Перевірити можна й тут.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Під час запуску й що шість годин. Знайдене завантажується у фоні та встановлюється під час виходу; якщо це неможливо, ви про це дізнаєтеся.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Магазин це призупинив. Перевірити все одно можна тут.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Перевірити оновлення…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версія %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Що нового</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустити цю версію</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Згорнути</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Відновити</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Розгорнути</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Закрити вікно</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Захищене з’єднання з %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>З’єднання не захищене</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Ваш акаунт видалено.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Сеанс завершився раніше, ніж акаунт було видалено. Увійдіть знову, щоб видалити його.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Доставка</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Безкоштовно</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Податки</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln посилка</numerusform>
            <numerusform>%Ln посилки</numerusform>
            <numerusform>%Ln посилок</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Підтверджено</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Запаковано</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Скасовано</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>В обробці</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Чекає на перевізника</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>У кур’єра</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Проблема з доставкою</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Повернення заявлено</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Повернення схвалено</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Кошти повернено</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>У поверненні відмовлено</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 і ще %Ln</numerusform>
            <numerusform>%1 і ще %Ln</numerusform>
            <numerusform>%1 і ще %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Не більше ніж %Ln символ.</numerusform>
            <numerusform>Не більше ніж %Ln символи.</numerusform>
            <numerusform>Не більше ніж %Ln символів.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Введіть номер телефону, наприклад %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Введіть дату, наприклад %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Введіть дату в минулому.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Щось із введеного не прийнято. Перевірте й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Введіть правильну адресу ел. пошти.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Код хибний або застарів. Попросіть новий.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Забагато спроб. Зачекайте хвилину й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Пошта й пароль не пасують одне до одного. Спробуйте ще раз або ввійдіть за кодом із листа.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Цей спосіб входу поки недоступний.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Цей акаунт не має придатної адреси ел. пошти. Спробуйте інший спосіб.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Вхід скасовано.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Не вдалося ввійти. Спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Введіть шість цифр коду.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Придумайте пароль щонайменше з 6 символів.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Введіть пароль. У ньому щонайменше 6 символів.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Це не те посилання, яким завершився вхід. Воно починається з «wrenfieldstore://».</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Довідковий центр LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Угоди</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Нове вікно</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Закріпити або відкріпити вкладку</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Перемістити вкладку назад</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Перемістити вкладку вперед</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Відкрити товар із панелі на всю сторінку</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Відкрити товар із панелі в новій вкладці</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Зробити знімок екрана</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>На весь екран</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>До початку розділу</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Наступна вкладка</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Попередня вкладка</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Рекомендовані</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Новинки</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Ціна: за зростанням</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Ціна: за спаданням</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Хіти продажу</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сьогодні</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Учора</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Жінкам</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Чоловікам</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Люкс</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Сумки</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Аксесуари</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Від %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>До %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Без повернення</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новинка</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Залишилася одна річ</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Залишилася лише %Ln річ</numerusform>
            <numerusform>Залишилося лише %Ln речі</numerusform>
            <numerusform>Залишилося лише %Ln речей</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>За відповідністю</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Цю річ не можна повернути</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Перевірте розмір і колір перед замовленням</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Виготовлено для вас</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Повернення лише за браку</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Шиється на замовлення, тож чекати довше</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Протягом 30 днів, без слідів носіння, з повним комплектом</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Збережіть коробку, пильник і документи</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Протягом 30 днів, із чистою підошвою, у коробці</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Спершу приміряйте вдома</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Протягом 30 днів, без слідів носіння, з бірками</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Спершу виберіть: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>У кошику %Ln товар</numerusform>
            <numerusform>У кошику %Ln товари</numerusform>
            <numerusform>У кошику %Ln товарів</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Не вдалося застосувати код. Спробуйте ще раз.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>Код «%1» не діє на товари у вашому кошику.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Вам доступна БЕЗКОШТОВНА доставка по всьому світу</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Ще %1 до БЕЗКОШТОВНОЇ доставки по всьому світу</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Замовлення оформлено. Воно з’явиться в розділі «Замовлення» за кілька хвилин.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Замовлення %1 оформлено. Воно з’явиться в розділі «Замовлення» за кілька хвилин.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln річ  ·  підтвердження надіслано вам на пошту</numerusform>
            <numerusform>%Ln речі  ·  підтвердження надіслано вам на пошту</numerusform>
            <numerusform>%Ln речей  ·  підтвердження надіслано вам на пошту</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Сторінка завантажувалася надто довго.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Сторінка веде за межі оформлення.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Сторінка перестала працювати.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Не вдалося почати оформлення. Спробуйте ще раз.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Дешевше на %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>роботи</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>побачення</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>вечірки</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>весілля</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>відпустки</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>подорожей</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>кожного дня</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>вихідних</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>навчання</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>співбесіди</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>випускного</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>фестивалю</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>пляжу</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>вечірнього виходу</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>бранчу</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>спортзалу</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>урочистих подій</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Нові надходження</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>На ваш смак</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Нове цього тижня</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Нове цього тижня</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Дібрано вручну</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Нове цього тижня · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>На ваш смак</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Люблять покупці, схожі на вас</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>За вашими переглядами</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Зараз у тренді</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>За вашим запитом «%1»</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Вам до душі: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Для %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Стиль: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>ніжність</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>вінтаж</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>елегантність</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>мінімалізм</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>романтика</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>стритстайл</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>готика</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>препі</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>французький шик</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>зухвалість</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>панк</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>кокетка</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>кежуал</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>бохо</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>фестиваль</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>класика</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>спорт</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>шик</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>гранж</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>корейська мода</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>японська мода</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>нова китайська мода</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>олд мані</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>тиха розкіш</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>дарк академія</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>балеткор</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>котеджкор</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>сексуальність</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>милота</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>крутість</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>жіночність</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>андрогінність</translation>
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
        <translation>строга класика</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>гламур</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>авангард</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>утилітарність</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>вестерн</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>курортний шик</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>Головна</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Розпродаж</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Вхідні</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Забагато спроб. Трохи зачекайте й спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Сеанс завершився. Увійдіть знову.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Введіть адресу ел. пошти.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Здається, не всі дані правильні. Перевірте їх і спробуйте ще раз.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>Зараз у LOOMSTREET негаразди. Спробуйте трохи згодом.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Не вийшло. Спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Надійшла неочікувана відповідь. Спробуйте ще раз.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Не вдалося зв’язатися з LOOMSTREET. Спробуйте ще раз.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Програмі бракує налаштувань.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Час очікування минув. Спробуйте ще раз.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Ще %Ln сповіщення чекає у вхідних.</numerusform>
            <numerusform>Ще %Ln сповіщення чекають у вхідних.</numerusform>
            <numerusform>Ще %Ln сповіщень чекають у вхідних.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Системні повідомлення</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Новини акаунта й сервісу</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Новини про замовлення</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Замовлення підтверджено, надіслано й доставлено</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Повернення речей і коштів</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Повернення коштів і перебіг повернення</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Відповіді служби підтримки</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Коли служба підтримки вам відповідає</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Речі, про які ви питали, знову в наявності</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Збережені або переглянуті речі подешевшали</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Активність у Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Уподобання, коментарі, нові підписники й повідомлення</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Зміна рівня, бали й нові купони</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Акції та події</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Розпродажі, нові дропи й події магазину</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Надіслано вкладення</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Замовлення оформлено</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Ваше замовлення підтверджено. Воно з’явиться в розділі «Замовлення» за кілька хвилин.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Замовлення %1 підтверджено. Воно з’явиться в розділі «Замовлення» за кілька хвилин.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>Не вдалося оновити LOOMSTREET</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Натисніть «Оновити» вгорі вікна, щоб установити нову версію з образу диска.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Приклад сповіщення</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Тут будуть новини про замовлення й відповіді служби підтримки.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Гардероб</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Усе, що ви маєте, в одному місці</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Студія образів</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Поєднайте речі й подивіться на ціле</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>Лукбук</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>Образи, які ви зберегли</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Ідеї образів</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Нові поєднання з вашого гардероба</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Добір розміру</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Ваші мірки й розмір, що їм пасує</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Пошук за фото</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Знайдіть річ за її фото</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Порівняння</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>До чотирьох речей поруч</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Перевіряємо оновлення…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>У вас остання версія</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Завантажується LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Перевіряємо завантажений файл…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Установлюється LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Не вдалося перевірити оновлення</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Не вдалося завантажити оновлення</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Готово до встановлення</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Установити оновлення</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1: можна встановлювати</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 — найновіша версія.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET закриється, і його замінить нова версія.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Завантажено. Перезапустіть, щоб завершити, або оновлення встановиться під час наступного виходу.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>У вікні, що відкрилося, перетягніть LOOMSTREET у «Програми» й виберіть «Замінити». Потім знову відкрийте LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>Не вдалося замінити LOOMSTREET на цьому комп’ютері. Установіть нову версію з образу диска. Це займе кілька секунд.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Ваша версія більше не підтримується.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Оновлення завантажено. Перезапустіть LOOMSTREET, щоб завершити, або воно встановиться під час наступного виходу.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Не вдалося перевірити оновлення. Перевірте з’єднання та спробуйте ще раз.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Не вдалося завантажити (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Завантажений файл неповний або змінився дорогою. Спробуйте ще раз.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Не вдалося прочитати завантажений файл.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Завантажений файл не має підпису LOOMSTREET, тому його не відкрито.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Завантажити й установити</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Перезапустити й оновити</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Відкрити образ диска</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Схоже, немає з’єднання з інтернетом.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira надто довго не відповідає.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Ви надсилаєте повідомлення надто швидко. Трохи зачекайте.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>У такому вигляді повідомлення надіслати не вдалося.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>Зараз у LOOMSTREET негаразди.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Не вдалося зв’язатися з LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Виберіть розміри: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Тим часом розпродано й не додано: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Не вдалося почати оформлення. Перевірте з’єднання та спробуйте ще раз.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Зріст або вага виглядають дивно. Перевірте числа й одиниці.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Одна з мірок виглядає дивно. Перевірте число або залиште поле порожнім.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Вільна</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Приталена</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Звичайна</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>З чим це носити: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Це повідомлення не підтверджено. Можна спробувати ще раз.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Розмову оновлено</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira відповідає</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira відповідає. Ці повідомлення можна надіслати трохи згодом.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Теми зберігаються на цьому комп’ютері. Mira пам’ятає вашу спільну розмову.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Допоможи мені щось знайти</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Склади образ із мого гардероба</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Що вдягти сьогодні ввечері</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET не може бачити, де ви. Введіть своє місто.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Не вдалося визначити, де ви. Введіть своє місто.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Такого міста не знайдено. Спробуйте більше місто поблизу.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira зараз не може відповісти. Спробуйте за хвильку.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira розмовляє на іншій лінії. Спробуйте за хвилину.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Зв’язок на мить перервався. Повторите?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Зв’язок обірвався. Подзвоніть ще раз, щоб продовжити.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Немає доступу до мікрофона. Увімкніть його: «Системні параметри › Приватність і безпека › Мікрофон», потім подзвоніть ще раз.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Не вдалося ввімкнути мікрофон. Перевірте, чи його під’єднано, і подзвоніть ще раз.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Вимкнення мікрофона під час дзвінка</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Додано в кошик</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Додано в кошик: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Не вдалося додати. Спробуйте на сторінці товару.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Уже відкриваю…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Відкриваю: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Як у системі</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Не під’єднано</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Верхній одяг</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Верх</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Низ</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Сукні</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Взуття</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Доповнення</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Тепло</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Сонячно</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Мінлива хмарність</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Похмуро</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Туман</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Мряка</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Дощ</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Сніг</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Зливи</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Гроза</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Цього файлу вже немає.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Не вдалося прочитати цей файл.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Цей файл порожній.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Цей файл більший за 10 МБ. Виберіть менший.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Надсилати можна лише фото й файли PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Можливо, це повідомлення не дійшло.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Приховані</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>У дорозі</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Доставлені</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Повідомлення для служби підтримки</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Розмова зі службою підтримки</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
</TS>
