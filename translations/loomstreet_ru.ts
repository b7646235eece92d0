<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Вы здесь</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Открыть полную страницу</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Отправка…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Показать всё</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter — отправить, Shift+Enter — новая строка</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Убрать: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Ранее</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Назад к выбору года</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позднее</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Развёрнуто</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Свёрнуто</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>К последним</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln новое сообщение</numerusform>
            <numerusform>%Ln новых сообщения</numerusform>
            <numerusform>%Ln новых сообщений</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Похоже, нет подключения к интернету. Проверьте соединение и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Скрыть пароль</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Показать пароль</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, раньше %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Распродано</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Выполняется</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Убрать из избранного</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Добавить в избранное</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, распродано</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, советуем вам</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Оценка %L1 из 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Оценка %L1 из 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Меньше</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Больше</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Ваш аккаунт</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Ваш гардероб всегда с вами</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Смотреть и покупать здесь можно и без аккаунта. А с ним магазин знает, где ваши посылки и чего вы ждёте.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Создать аккаунт</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Все заказы в одном месте</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Где каждая посылка — и возвраты без поиска чека</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Весточка, когда это важно</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Ваш размер снова есть или цена снизилась</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Клуб и купоны</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Баллы, уровни и что они дают</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Оформление, которое вас знает</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Ваш адрес уже на месте</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Служба поддержки</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Заказы, возвраты и размеры</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Заказы</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>В пути и купленное раньше</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Отследить посылку</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>По номеру посылки или заказа</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Возвраты</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Вернуть покупку</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Для вас</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Избранное</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Пока ничего не сохранено</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln вещь</numerusform>
            <numerusform>%Ln вещи</numerusform>
            <numerusform>%Ln вещей</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Оповещения</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Снова в наличии и снижение цен</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Клуб</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Ваш уровень и баллы</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Купоны</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Для ваших следующих заказов</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Аккаунт</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Без аккаунта</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Имя, день рождения и рассылки</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Конфиденциальность</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Что магазин узнаёт о вас</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Хранится на этом компьютере</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Удалить аккаунт…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Связка ключей не отвечает</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>В ней надёжно хранятся данные для входа, без неё войти нельзя. Разблокируйте её и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Снова в наличии</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Снижение цены</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Уже в продаже</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Уже дешевле</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>При подписке: %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Отключить оповещение</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln оповещение</numerusform>
            <numerusform>%Ln оповещения</numerusform>
            <numerusform>%Ln оповещений</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Мы напишем на %1, когда вещь снова появится или подешевеет.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Оповещений пока нет</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Если вещь распродана в вашем размере, нажмите «Сообщить о поступлении». У любой другой — «Сообщить о снижении цены».</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Новинки</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Войдите, чтобы увидеть оповещения</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Мы сообщим, когда вещь снова появится в вашем размере или подешевеет.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Письма о нём приходить не будут.</numerusform>
            <numerusform>Письма о них приходить не будут.</numerusform>
            <numerusform>Письма о них приходить не будут.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln вещь</numerusform>
            <numerusform>%1, %Ln вещи</numerusform>
            <numerusform>%1, %Ln вещей</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Дизайнеры</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln дизайнер</numerusform>
            <numerusform>%Ln дизайнера</numerusform>
            <numerusform>%Ln дизайнеров</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Найти дизайнера</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Буквы</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Другие дизайнеры</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Дизайнеры на букву %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>По запросу «%1» дизайнеров нет</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Проверьте написание или посмотрите весь список.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Показать всех дизайнеров</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Здесь пока пусто</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Новые вещи появляются каждую неделю.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Обзор</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln отзыв</numerusform>
            <numerusform>%Ln отзыва</numerusform>
            <numerusform>%Ln отзывов</numerusform>
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
        <translation>Предзаказ</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Чаще выбирают: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>С чем это носить?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Сравнить</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Рядом с тем, что вы сохранили или смотрели</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>БЕСПЛАТНАЯ доставка по всему миру</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>При заказе от %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Полезно знать</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Таможенные пошлины включены</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Доставка рассчитывается при оформлении</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Напишем вам о поступлении</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Сообщить о поступлении</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Добавлено</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>В корзину</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Нажмите, чтобы отменить</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Открываем оформление…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Купить сейчас</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Звонок: %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Открыть в отдельном окне</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Завершить звонок</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Показать звонок</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Позвонить: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Позвонить снова</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Микрофон включён</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Микрофон выключен</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Вызов…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Думает</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Говорит</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Микрофон выключен</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Слушает</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Звонок завершён</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Включить микрофон</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Выключить микрофон</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Промокод</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Не удалось загрузить корзину</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Ваши товары на месте. Проверьте соединение и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Корзина пуста</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Здесь появятся товары, которые вы добавите.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Продолжить покупки</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Убрано из корзины: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Прежняя корзина больше не действует. В ней был %Ln товар.</numerusform>
            <numerusform>Прежняя корзина больше не действует. В ней было %Ln товара.</numerusform>
            <numerusform>Прежняя корзина больше не действует. В ней было %Ln товаров.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Количество: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Убрать из корзины</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Корзина</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Корзина</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Показать боковой панелью</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Товары</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Скидка</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Итого</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Таможенные пошлины включены · Доставка рассчитывается при оформлении</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Оформить заказ</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Завершите оплату в окне оформления. Корзина останется как есть.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Недоступно</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Коллекция</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln новинка за последние 30 дней</numerusform>
            <numerusform>%Ln новинки за последние 30 дней</numerusform>
            <numerusform>%Ln новинок за последние 30 дней</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Эта коллекция недоступна</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Возможно, она переименована или не продаётся в этом регионе: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Под эти фильтры ничего не подходит</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Уберите один из фильтров, чтобы увидеть больше.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Дополните образ</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>С чем это сочетать</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Ещё нравится</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Тем, кто смотрел эту вещь</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Вам может понравиться</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Добавить вещи к сравнению</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Добавить вещь</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Из избранного и просмотренного</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Сохраняйте вещи или смотрите их, а потом добавляйте сюда.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Сравнить: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Размеры</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Состав</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Убрать из сравнения</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Не продаётся в вашем регионе.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>не указано</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Размеры: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>В начало</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Что носят другие</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Посмотреть</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Подписки</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Новости ваших дизайнеров</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Смотреть новое</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Гардероб</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Что мне сегодня надеть?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Открыть гардероб</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Ваши заказы и оповещения</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Ваш клуб</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Узнать о преимуществах</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Где моя посылка?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Заказ %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Посмотреть заказ</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Снижение цен</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Ваши вещи подешевели</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Сохраняйте любимое</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>Сохранена %Ln вещь</numerusform>
            <numerusform>Сохранено %Ln вещи</numerusform>
            <numerusform>Сохранено %Ln вещей</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Открыть избранное</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Удалить аккаунт?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Профиль, оповещения, членство в клубе и список заказов будут удалены навсегда. Заказы, которые уже в пути, придут. Отменить это нельзя.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Для подтверждения введите свой адрес эл. почты</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Удалить аккаунт</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Коллекции</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Фильтры</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Сбросить все фильтры</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Найти: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Показать меньше</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Показать все: %Ln</numerusform>
            <numerusform>Показать все: %Ln</numerusform>
            <numerusform>Показать все: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>От</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>До</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Показать вещи</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Показать %Ln вещь</numerusform>
            <numerusform>Показать %Ln вещи</numerusform>
            <numerusform>Показать %Ln вещей</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Закрыть фильтры</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>Выбрано: %Ln, сравнить можно %L1</numerusform>
            <numerusform>Выбрано: %Ln, сравнить можно %L1</numerusform>
            <numerusform>Выбрано: %Ln, сравнить можно %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>Выбрано: %Ln</numerusform>
            <numerusform>Выбрано: %Ln</numerusform>
            <numerusform>Выбрано: %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Выберите от двух до четырёх вещей</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Сначала новые</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Цена: по возрастанию</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Цена: по убыванию</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Это всё: %Ln вещь</numerusform>
            <numerusform>Это всё: %Ln вещи</numerusform>
            <numerusform>Это всё: %Ln вещей</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Коллекция: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Открыть: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Выберите размер</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Советуем вам: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>В корзине</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Заменить</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Исключить</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 из %Ln вещи</numerusform>
            <numerusform>%L1 из %Ln вещей</numerusform>
            <numerusform>%L1 из %Ln вещей</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Вместо: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Похожего сейчас нет.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Выбор Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Ваш образ</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Выберите размеры, замените то, что нравится меньше, исключите то, что уже есть.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>см</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>дюймы</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Ваши мерки</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>По ним Mira подбирает ваши размеры. Мерки отправляются в вашу переписку, а копия хранится на этом компьютере, пока вы не выйдете.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Единицы</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Метрические</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Имперские</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Рост (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>футы</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Вес (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>кг</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>фунты</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>Грудь (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Талия (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Бёдра (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Не знаете — оставьте пустыми.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Любимая посадка</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Отправить стилисту</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Удалить с этого компьютера</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Собрать с этим образ</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Выбрать размер и добавить в корзину</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Сообщение для %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Образ с вещью: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Мои вещи · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Образ из моих вещей</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Погода</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Посмотреть образ: %Ln вещь в вашем размере</numerusform>
            <numerusform>Посмотреть образ: %Ln вещи, каждая в вашем размере</numerusform>
            <numerusform>Посмотреть образ: %Ln вещей, каждая в вашем размере</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Новая тема</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Темы…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Образ из моих вещей…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Мои мерки…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Погода…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Показать рядом со страницей</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Подсказки</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Отправить: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Переписка: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Название темы</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Удалить «%1»?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Оставить</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Темы</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Вы</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Указать мои мерки</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 начнёт с этих вещей и добавит новое лишь там, где чего-то не хватает.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Пока не из чего собрать образ</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Здесь появятся вещи из корзины и избранного.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>Выбрано %Ln — больше нельзя</numerusform>
            <numerusform>Выбрано %Ln — больше нельзя</numerusform>
            <numerusform>Выбрано %Ln — больше нельзя</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>В вашей корзине</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>В вашем избранном</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Где вы? Образ будет по погоде.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Подобрать образ по погоде</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Город</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Определить моё местоположение</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Для какого случая одеваемся?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Расскажите о поводе, любимой вещи или бюджете — %1 соберёт образ.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Войдите, чтобы видеть новости о ваших заказах и оповещениях.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Служба поддержки</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Войдите, чтобы увидеть уведомления</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Ничего нового</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Здесь будут новости о заказах в пути, поступлениях и снижении цен.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Здесь будет всё о ваших заказах и вещах, за которыми вы следите.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Не прочитано</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Отметить всё как прочитанное</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Настройки уведомлений</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Ожидается: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Заказ</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Дата заказа: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Посылка</numerusform>
            <numerusform>Посылки</numerusform>
            <numerusform>Посылки</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Вещи</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Возвраты</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Этого заказа здесь нет</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Новый заказ появится здесь через несколько минут.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Возможно, он оформлен с другого аккаунта.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Войдите, чтобы увидеть этот заказ</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Посылку можно отследить по номеру и без аккаунта.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Количество: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Скрыт</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Снова показывать заказ</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Скрыть заказ</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Какие заказы</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>В пути</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Доставлено</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Все ваши заказы скрыты</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>В пути ничего нет</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Пока ничего не доставлено</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Возвратов нет</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Некоторые из них скрыты.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Показать скрытые заказы</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Все заказы</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Ваш заказ скоро здесь появится</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Заказов пока нет</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Здесь видно, что вы заказали и где сейчас ваш заказ.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Войдите, чтобы увидеть заказы</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Где они сейчас, что в них и как оформить возврат.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Скрыто из заказов на этом компьютере.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Шаг %L1 из %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Адрес доставки</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Оформить возврат</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Посылка %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Этот номер пока никому не известен</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Перевозчик может узнать о новой посылке лишь через день.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Открыть страницу перевозчика</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Перевозчик пока ничего о ней не сообщил.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>История посылки</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Временно недоступно</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Эта функция приостановлена. Загляните сюда позже.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Убрать из списка</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Эта вещь недоступна</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Возможно, она распродана насовсем или не продаётся в этом регионе: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Напишем вам, когда подешевеет</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Сообщить о снижении цены</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln вещь подешевела с вашего просмотра</numerusform>
            <numerusform>%Ln вещи подешевели с вашего просмотра</numerusform>
            <numerusform>%Ln вещей подешевели с вашего просмотра</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Пока не за чем следить</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Сейчас снижений цен нет</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Сохраните вещь или просто посмотрите её — и здесь увидите, когда она подешевеет.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Сохранённые и просмотренные вещи стоят столько же, сколько стоили при просмотре, или вы смотрели их в другой валюте.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Финальная распродажа</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Фото %L1 из %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, фото %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Смотреть все</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Не интересно</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Через %Ln день: %1</numerusform>
            <numerusform>Через %Ln дня: %1</numerusform>
            <numerusform>Через %Ln дней: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Ответ магазина: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Отзывы</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Ещё отзывы</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Главное</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Детали</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Вопросы и ответы</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Телефон</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>День рождения</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Выберите дату</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Эл. почта</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Адрес, с которым вы входите</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Отменить изменения</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>С нами с %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Рассылки</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>По эл. почте</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Новинки и предложения, на %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>По SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Нужен номер телефона выше</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Войдите, чтобы увидеть профиль</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Ваше имя, телефон и что вам можно присылать.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Смотреть</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Посмотрите что-нибудь, и здесь появится то, что к этому подходит.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Недавно просмотренное</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Очистить всё</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Просмотров пока нет</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Здесь собираются вещи, которые вы смотрели, чтобы к ним было легко вернуться.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Войдите, и мы напишем, когда вещь снова появится.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Письмо придёт на %1. Если передумали, нажмите ещё раз.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Письмо придёт на %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Увеличить фото %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>«%1»: %Ln результат</numerusform>
            <numerusform>«%1»: %Ln результата</numerusform>
            <numerusform>«%1»: %Ln результатов</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Что вы ищете?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>По запросу «%1» ничего не найдено</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Проверьте написание, попробуйте слово пошире или загляните в «Новинки».</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Под эти фильтры ничего не подходит</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Уберите один-два фильтра, чтобы увидеть больше по запросу «%1»</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Выйти из аккаунта?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Корзина и избранное останутся на этом компьютере. Заказы и клуб снова будут доступны после входа.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Таблица размеров</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Единицы размеров</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Сортировка: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Сейчас инструментов нет.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Номер посылки или заказа</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Он указан в письме об отправке.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Мы не знаем этого номера. Проверьте его или попробуйте завтра: новая посылка может появиться лишь через день.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Отследить</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Эта страница недоступна</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Возможно, она переехала или появится в другой версии.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Нажмите на сердечко у вещи, и она будет ждать вас здесь. За её ценой мы тоже следим.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Ваш аккаунт: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Ищем ваш аккаунт…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Вход не выполнен</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Аккаунт нужен для заказов, оповещений и клуба. Смотреть и покупать можно без него.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Внешний вид</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Цвета</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Светлые или тёмные — вслед за системой</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлые</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмные</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Системная рамка окна</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Строка заголовка над вкладками, как у других окон</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Переход</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Субтитры</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Скажите, что вы ищете или для какого случая.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Отменить звонок</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Чат</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Продолжить в чате, чтобы и писать</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Звонок: %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Длительность звонка: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Показать в чате</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Закрыть и продолжить в чате</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Завершить звонок и закрыть</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Только изображение</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Показать звонок: %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Звонок: %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Развернуть на всю страницу</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Следите за ним в любое время в разделе «Заказы».</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Обновить страницу</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Безопасная оплата через Shopify  ·  Корзина останется как есть</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Ссылка на этой странице ведёт за пределы оформления: %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Открыть в браузере</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Оформление нельзя показать здесь</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Продолжить в браузере</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET не настроен</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Запустите scripts/sync-secrets.sh в папке проекта и выполните сборку снова.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выйти из приложения</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>История просмотров</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Основные</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Страна и валюта</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Язык магазина</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Открывать вещи рядом со списком</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>В широких окнах вещь видна рядом с местом, где вы её нашли</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Единицы измерения</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Сантиметры и килограммы</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Дюймы и фунты</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Страница без названия</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Приостановить слайд-шоу</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Запустить слайд-шоу</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Не удалось загрузить это фото</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Регион и язык: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Регион и язык</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Поиск языка</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Поиск страны или валюты</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Языки</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Страны</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>По запросу «%1» языков нет</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>По запросу «%1» стран нет</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>В окне</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Баннер вверху окна на несколько секунд.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>На рабочем столе</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Там, где система показывает уведомления приложений, даже если окна закрыты.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Со звуком</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Счётчик на значке приложения</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Сколько ещё не прочитано.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Показать пример</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>О чём сообщать</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Больше не рекомендуется на этом компьютере.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Боковая панель</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Открыть в новой вкладке</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Закрыть боковую панель</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Ширина боковой панели</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Помогать магазину решать, что показывать</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Магазин узнаёт, какие страницы открывают, какие вещи смотрят, кладут в корзину и покупают и когда приложение неожиданно закрылось, — без вашего имени. Если выключить, отправляется только необходимое.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>В любом случае</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Необходимое — то, о чём вы просите</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Открытые страницы, поисковые запросы, корзина и заказы должны доходить до магазина.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Ваше остаётся на этом компьютере</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Избранное, просмотренное и поисковые запросы, пока вы их не очистите.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Данные для входа лежат в связке ключей</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Если её нет — в файле, который можете прочитать только вы. Вход действует 60 дней или пока вы не выйдете.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Снимок экрана сохранён</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Не удалось сохранить снимок экрана</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Проверьте, есть ли место в папке «Изображения».</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Показать папку</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Поиск или ссылка</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Искать по фото…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Разделы</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Продолжить через %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Выполняется вход…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 откроется в браузере. Войдите там, и вход здесь выполнится сам.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Копировать адрес</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Если браузер не открылся сам</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Здесь ничего не произошло?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Вставьте ссылку, на которой остановился браузер</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Она начинается с «wrenfieldstore://». Некоторые браузеры показывают её в адресной строке.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Завершить вход</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Создайте аккаунт</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Войдите в аккаунт</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Способы входа</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Код из письма</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Мы отправили код на %1. Письмо может идти около минуты.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Сначала пришлём код на почту, чтобы убедиться, что адрес ваш.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Пришлём на почту код для входа. Пароль не нужен.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Код подтверждения</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Повторить через %L1 с</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Отправить снова</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Отправить код снова</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Пароль (не менее 6 символов)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Имя (необязательно)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Забыли пароль? Войдите по коду из письма</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Прислать код</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>или продолжить через</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Микрофон</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Перестать слушать микрофон</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Проверить микрофон</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Громкость</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Микрофон занят звонком.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Скажите что-нибудь: полоска следует за голосом. Ничего не покидает этот компьютер.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Показывает, как громко вы говорите. Ничего не покидает этот компьютер.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Динамик</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 выключает микрофон из любого места, пока идёт звонок.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>Клавиша M выключает микрофон в окне звонка.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Ссылка</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Искать «%1»</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Недавнее</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Просмотренное и сохранённое</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Ничего подходящего. Enter — искать среди всех вещей.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>выбрать</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>закрыть</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Убрать «%1» из недавних запросов</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Фото: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Откроется в браузере</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Напишите сообщение</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Прикрепить фото или PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Фото и PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Перетащите сюда фото или PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Чем можем помочь?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Спросите о заказе, возврате или размере. Фото тоже помогут.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Где мой заказ?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Хочу оформить возврат</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Какой размер мне выбрать?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Загрузка</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Закрыть: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Новая вкладка справа</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Открепить вкладку</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Закрепить вкладку</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Перенести вкладку в новое окно</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Открыть закрытую вкладку</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Закрыть вкладку</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Закрыть другие вкладки</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Развернуть боковое меню</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Свернуть боковое меню</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Вкладки</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Новая вкладка</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Вперёд</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Удалено из списка: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Последняя проверка: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Проверки ещё не было</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Эта копия LOOMSTREET не может обновляться сама.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET сам ищет новые версии.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Пока LOOMSTREET не ищет новые версии сам.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Новые версии приходят оттуда, откуда установлено приложение. Проверить можно и здесь.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>При запуске и каждые шесть часов. Найденное загружается в фоне и устанавливается при выходе; если это невозможно, вы об этом узнаете.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Магазин это приостановил. Проверить всё же можно здесь.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Что нового</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустить эту версию</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Закрыть окно</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Защищённое соединение с %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Соединение не защищено</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Ваш аккаунт удалён.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Сеанс завершился раньше, чем аккаунт был удалён. Войдите снова, чтобы удалить его.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Доставка</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Бесплатно</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Налоги</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln посылка</numerusform>
            <numerusform>%Ln посылки</numerusform>
            <numerusform>%Ln посылок</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Подтверждено</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Упаковано</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>В обработке</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Ждёт перевозчика</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>У курьера</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Проблема с доставкой</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Возврат запрошен</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Возврат одобрен</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Деньги возвращены</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>В возврате отказано</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 и ещё %Ln</numerusform>
            <numerusform>%1 и ещё %Ln</numerusform>
            <numerusform>%1 и ещё %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Не более %Ln символа.</numerusform>
            <numerusform>Не более %Ln символов.</numerusform>
            <numerusform>Не более %Ln символов.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Введите номер телефона, например %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Введите дату, например %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Введите дату в прошлом.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Что-то из введённого не принято. Проверьте и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Введите правильный адрес эл. почты.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Код неверный или устарел. Запросите новый.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Слишком много попыток. Подождите минуту и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Почта и пароль не подходят друг к другу. Попробуйте ещё раз или войдите по коду из письма.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Этот способ входа пока недоступен.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>У этого аккаунта нет подходящего адреса эл. почты. Попробуйте другой способ.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Вход отменён.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Не удалось войти. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Введите шесть цифр кода.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Придумайте пароль не короче 6 символов.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Введите пароль. В нём не менее 6 символов.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Это не та ссылка, которой завершился вход. Она начинается с «wrenfieldstore://».</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Справочный центр LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Соглашения</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Новое окно</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Закрепить или открепить вкладку</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Переместить вкладку назад</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Переместить вкладку вперёд</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Открыть товар из панели на всю страницу</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Открыть товар из панели в новой вкладке</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Сделать снимок экрана</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Полный экран</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>К началу раздела</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Следующая вкладка</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Предыдущая вкладка</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Рекомендуемые</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Новинки</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Цена: по возрастанию</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Цена: по убыванию</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Хиты продаж</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Женщинам</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Мужчинам</translation>
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
        <translation>Аксессуары</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>От %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>До %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Без возврата</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Новинка</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Осталась одна вещь</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Осталась лишь %Ln вещь</numerusform>
            <numerusform>Осталось лишь %Ln вещи</numerusform>
            <numerusform>Осталось лишь %Ln вещей</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>По соответствию</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Эту вещь нельзя вернуть</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Проверьте размер и цвет перед заказом</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Изготовлено для вас</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Возврат только при браке</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Шьётся на заказ, поэтому ждать дольше</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>В течение 30 дней, без следов носки, с полным комплектом</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Сохраните коробку, пыльник и документы</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>В течение 30 дней, с чистой подошвой, в коробке</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Сначала примерьте дома</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>В течение 30 дней, без следов носки, с бирками</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Сначала выберите: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>В корзине %Ln товар</numerusform>
            <numerusform>В корзине %Ln товара</numerusform>
            <numerusform>В корзине %Ln товаров</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Не удалось применить код. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>Код «%1» не действует на товары в вашей корзине.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Вам доступна БЕСПЛАТНАЯ доставка по всему миру</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Ещё %1 до БЕСПЛАТНОЙ доставки по всему миру</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Заказ оформлен. Он появится в разделе «Заказы» через несколько минут.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Заказ %1 оформлен. Он появится в разделе «Заказы» через несколько минут.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln вещь  ·  подтверждение отправлено вам на почту</numerusform>
            <numerusform>%Ln вещи  ·  подтверждение отправлено вам на почту</numerusform>
            <numerusform>%Ln вещей  ·  подтверждение отправлено вам на почту</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Страница загружалась слишком долго.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Страница ведёт за пределы оформления.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Страница перестала работать.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Не удалось начать оформление. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Дешевле на %1</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>работы</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>свидания</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>вечеринки</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>свадьбы</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>отпуска</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>путешествий</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>каждого дня</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>выходных</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>учёбы</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>собеседования</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>выпускного</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>фестиваля</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>пляжа</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>вечернего выхода</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>бранча</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>спортзала</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>торжества</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Новые поступления</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>По вашему вкусу</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Новое на этой неделе</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Новое на этой неделе</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Выбрано вручную</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Новое на этой неделе · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>По вашему вкусу</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Любят покупатели, похожие на вас</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>На основе ваших просмотров</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Сейчас в тренде</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>По вашему запросу «%1»</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Вам нравится: %1</translation>
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
        <translation>нежность</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>винтаж</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>элегантность</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>минимализм</translation>
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
        <translation>преппи</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>французский шик</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>дерзость</translation>
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
        <translation>кэжуал</translation>
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
        <translation>классика</translation>
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
        <translation>корейская мода</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>японская мода</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>новая китайская мода</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>олд-мани</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>тихая роскошь</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>дарк-академия</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>балеткор</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>коттеджкор</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>сексуальность</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>милота</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>крутость</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>женственность</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>андрогинность</translation>
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
        <translation>строгая классика</translation>
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
        <translation>утилитарность</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>вестерн</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>курортный шик</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>Главная</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Распродажа</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Входящие</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Слишком много попыток. Подождите немного и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Сеанс истёк. Войдите снова.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Введите адрес эл. почты.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Кажется, не все данные верны. Проверьте их и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>Сейчас в LOOMSTREET неполадки. Попробуйте чуть позже.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Не получилось. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Пришёл неожиданный ответ. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Не удалось связаться с LOOMSTREET. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Приложению не хватает настроек.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Время ожидания истекло. Попробуйте ещё раз.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Ещё %Ln уведомление ждёт вас во входящих.</numerusform>
            <numerusform>Ещё %Ln уведомления ждут вас во входящих.</numerusform>
            <numerusform>Ещё %Ln уведомлений ждут вас во входящих.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Системные сообщения</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Новости аккаунта и сервиса</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Новости о заказах</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Заказ подтверждён, отправлен и доставлен</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Возвраты вещей и денег</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Возврат денег и ход возврата</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Ответы службы поддержки</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Когда служба поддержки вам отвечает</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Вещи, о которых вы спрашивали, снова в наличии</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Сохранённые и просмотренные вещи подешевели</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Активность в Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Лайки, комментарии, новые подписчики и сообщения</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Смена уровня, баллы и новые купоны</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Акции и события</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Распродажи, новые дропы и события магазина</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Отправлено вложение</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Заказ оформлен</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Ваш заказ подтверждён. Он появится в разделе «Заказы» через несколько минут.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Заказ %1 подтверждён. Он появится в разделе «Заказы» через несколько минут.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>Не удалось обновить LOOMSTREET</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Нажмите «Обновить» вверху окна, чтобы установить новую версию с образа диска.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Пример уведомления</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Здесь будут новости о заказах и ответы службы поддержки.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Гардероб</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Всё, что у вас есть, в одном месте</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Студия образов</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Соберите вещи вместе и посмотрите на целое</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>Лукбук</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>Образы, которые вы сохранили</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Идеи образов</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Новые сочетания из вашего гардероба</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Подбор размера</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Ваши мерки и подходящий к ним размер</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Поиск по фото</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Найдите вещь по её фото</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Сравнение</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>До четырёх вещей рядом</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Проверяем обновления…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>У вас последняя версия</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Загружается LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Проверяем загруженный файл…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Устанавливается LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Не удалось проверить обновления</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Не удалось загрузить обновление</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Готово к установке</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Установить обновление</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1: можно устанавливать</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 — самая новая версия.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET закроется, и его сменит новая версия.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Загружено. Перезапустите, чтобы завершить, или обновление установится при следующем выходе.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>В открывшемся окне перетащите LOOMSTREET в «Приложения» и выберите «Заменить». Затем снова откройте LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>Не удалось заменить LOOMSTREET на этом компьютере. Установите новую версию с образа диска. Это займёт несколько секунд.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Ваша версия больше не поддерживается.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Обновление загружено. Перезапустите LOOMSTREET, чтобы завершить, или оно установится при следующем выходе.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Не удалось проверить обновления. Проверьте соединение и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Не удалось загрузить (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Загруженный файл неполный или изменился в пути. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Не удалось прочитать загруженный файл.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Загруженный файл не подписан LOOMSTREET, поэтому его не открыли.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Загрузить и установить</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Перезапустить и обновить</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Открыть образ диска</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Похоже, нет подключения к интернету.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira слишком долго не отвечает.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Вы отправляете сообщения слишком быстро. Немного подождите.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>В таком виде сообщение отправить не удалось.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>Сейчас в LOOMSTREET неполадки.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Не удалось связаться с LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Выберите размеры: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Тем временем распродано и не добавлено: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Не удалось начать оформление. Проверьте соединение и попробуйте ещё раз.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Рост или вес выглядят странно. Проверьте числа и единицы.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Одна из мерок выглядит странно. Проверьте число или оставьте поле пустым.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Свободная</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Приталенная</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Обычная</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>С чем это носить: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Это сообщение не подтверждено. Можно попробовать ещё раз.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Переписка обновлена</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira отвечает</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira отвечает. Эти сообщения можно отправить чуть позже.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Темы хранятся на этом компьютере. Mira помнит вашу общую переписку.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Помоги мне что-нибудь найти</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Собери образ из моего гардероба</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Что надеть сегодня вечером</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET не может видеть, где вы. Введите свой город.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Не удалось определить, где вы. Введите свой город.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Такой город не найден. Попробуйте город побольше рядом.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira сейчас не может ответить. Попробуйте через минутку.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira говорит по другой линии. Попробуйте через минуту.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Связь на миг прервалась. Повторите, пожалуйста.</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Связь оборвалась. Позвоните снова, чтобы продолжить.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Нет доступа к микрофону. Включите его: «Системные настройки › Конфиденциальность и безопасность › Микрофон», затем позвоните снова.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Не удалось включить микрофон. Проверьте, подключён ли он, и позвоните снова.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Выключение микрофона во время звонка</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Добавлено в корзину</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Добавлено в корзину: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Не удалось добавить. Попробуйте на странице товара.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Уже открываю…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Открываю: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Не подключено</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Верхняя одежда</translation>
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
        <translation>Платья</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Обувь</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Дополнения</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Тепло</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Солнечно</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Переменная облачность</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Пасмурно</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Туман</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Морось</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Дождь</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Снег</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Ливни</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Гроза</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Этого файла больше нет.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Не удалось прочитать этот файл.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Этот файл пуст.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Этот файл больше 10 МБ. Выберите файл поменьше.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Отправлять можно только фото и файлы PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Возможно, это сообщение не дошло.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Скрытые</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>В пути</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Доставленные</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Сообщение для службы поддержки</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Переписка со службой поддержки</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
</TS>
