<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Estás aquí</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Abrir página completa</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Ver menos</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Ver todo</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Intro envía, Mayús+Intro empieza otra línea</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Quitar %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Anteriores</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Volver al año</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Posteriores</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Desplegado</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Contraído</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Ir a lo más reciente</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln mensaje nuevo</numerusform>
            <numerusform>%Ln mensajes nuevos</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Parece que no tienes conexión. Revísala e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Ocultar la contraseña</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Mostrar la contraseña</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, antes %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Agotado</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Quitar de la lista de deseos</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Guardar en la lista de deseos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1: agotado</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, recomendada para ti</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Valoración: %L1 de 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Valoración: %L1 de 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Menos</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Más</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Tu cuenta</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Tu guardarropa, siempre presente</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Aquí puedes mirar y comprar todo sin cuenta. Con una, la tienda sabe dónde están tus paquetes y qué estás esperando.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Crear cuenta</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Tus pedidos, juntos</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Dónde está cada paquete, y devoluciones sin buscar el recibo</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Un aviso cuando importa</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Tu talla ha vuelto o el precio ha bajado</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Membresía y cupones</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Puntos, niveles y sus ventajas</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Un pago que te conoce</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Tu dirección ya está ahí</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Atención al cliente</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Pedidos, devoluciones y tallas</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Pedidos</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>En camino y anteriores</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Seguir un paquete</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Por su número o el del pedido</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Devoluciones</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Devolver algo</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Para ti</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Lista de deseos</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Aún no hay nada guardado</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln pieza</numerusform>
            <numerusform>%Ln piezas</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>De nuevo en stock y mejores precios</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Membresía</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Tu nivel y tus puntos</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Cupones</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Para usar al pagar</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Sin cuenta</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Nombre, cumpleaños y boletines</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidad</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Lo que la tienda sabe de ti</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Guardado en este equipo</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Eliminar cuenta…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Tu llavero no responde</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Protege tu sesión, y sin él no es posible iniciarla. Desbloquéalo e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>De nuevo en stock</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Bajada de precio</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Otra vez en stock</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Ahora más bajo</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 al crear la alerta</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Detener esta alerta</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln alerta</numerusform>
            <numerusform>%Ln alertas</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Te escribimos a %1 cuando una pieza vuelve o baja de precio.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Aún no hay alertas</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>En una pieza agotada en tu talla, haz clic en «Avísame cuando vuelva». En cualquier otra, en «Avísame si baja de precio».</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Inicia sesión para ver tus alertas</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Te avisamos cuando una pieza vuelve en tu talla o cuesta menos.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>No te enviaremos correos sobre ella.</numerusform>
            <numerusform>No te enviaremos correos sobre ellas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln pieza</numerusform>
            <numerusform>%1, %Ln piezas</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Diseñadores</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln diseñador</numerusform>
            <numerusform>%Ln diseñadores</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Buscar un diseñador</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Letras</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Otros diseñadores</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Diseñadores con %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Ningún diseñador coincide con «%1»</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Revisa la ortografía o recórrelos todos.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Ver todos los diseñadores</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Aquí aún no hay nada</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Cada semana llegan piezas nuevas.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Explorar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln opinión</numerusform>
            <numerusform>%Ln opiniones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln vendida</numerusform>
            <numerusform>%Ln vendidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Preventa</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>La más elegida: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Cómo combinar esta pieza</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Junto a piezas que guardaste o viste</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>Envío GRATIS a todo el mundo</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>En compras desde %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Conviene saber</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Aranceles incluidos</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>El envío se calcula al pagar</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Te escribiremos cuando vuelva</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Avísame cuando vuelva</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Añadido</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Añadir al carrito</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Haz clic para cancelar</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Abriendo el pago…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Comprar ahora</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Llamada con %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Abrir en una ventana</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Colgar</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Terminar la llamada</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Mostrar la llamada</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Llamar a %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Volver a llamar</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>El micrófono está activado</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>El micrófono está silenciado</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Llamando…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Pensando</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Hablando</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Silenciado</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Escuchando</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Llamada terminada</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Activar el micrófono</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Código de descuento</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>No se pudo cargar tu carrito</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Tus artículos están a salvo. Revisa tu conexión e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Tu carrito está vacío</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Los artículos que añadas aparecerán aquí.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Seguir comprando</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Quitado del carrito: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Tu carrito anterior caducó. Tenía %Ln artículo.</numerusform>
            <numerusform>Tu carrito anterior caducó. Tenía %Ln artículos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Volver a añadir</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Cantidad: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Quitar del carrito</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Carrito</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Carrito</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Mostrar como panel lateral</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Subtotal</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Descuento</translation>
    </message>
    <message>
        <source>Total</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Total</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Aranceles incluidos · El envío se calcula al pagar</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Finalizar compra</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Termina de pagar en la ventana de pago. Tu carrito queda como está.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Colección</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln novedad en los últimos 30 días</numerusform>
            <numerusform>%Ln novedades en los últimos 30 días</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Esta colección no está disponible</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Quizá cambió de nombre o no se vende aquí (%1)</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Ningún artículo coincide con estos filtros</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Quita un filtro para ver más.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Completa el look</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Piezas para combinar</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>También gustaron</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>A quienes vieron esta pieza</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>También te puede gustar</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Añadir piezas para comparar</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Añadir una pieza</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>De tu lista de deseos y de lo que viste</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Guarda o mira piezas y añádelas aquí.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Comparar con %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Tallas</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Composición</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Quitar de la comparación</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>No disponible en tu país.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>no indicado</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Tallas: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Volver al principio</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Lo que llevan los demás</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Echar un vistazo</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Siguiendo</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Novedades de tus diseñadores</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Ver las novedades</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Armario</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>¿Qué me pongo hoy?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Abrir el armario</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Tus pedidos y alertas</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Tu membresía</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Ver qué ofrece</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>¿Dónde está mi paquete?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Pedido %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Ver el pedido</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Bajadas de precio</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Tus piezas cuestan menos ahora</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Guarda lo que te encanta</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln pieza guardada</numerusform>
            <numerusform>%Ln piezas guardadas</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Ver la lista de deseos</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>¿Eliminar tu cuenta?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Tu perfil, tus alertas, tu membresía y la lista de tus pedidos se eliminarán para siempre. Los pedidos en camino llegarán igualmente. Esto no se puede deshacer.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Escribe tu correo electrónico para confirmar</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Eliminar cuenta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Colecciones</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Borrar todos los filtros</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Buscar: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Nada con ese nombre</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Ver menos</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Ver todo (%Ln)</numerusform>
            <numerusform>Ver todo (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Ver piezas</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Ver %Ln pieza</numerusform>
            <numerusform>Ver %Ln piezas</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Cerrar filtros</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln elegida, se pueden comparar %L1</numerusform>
            <numerusform>%Ln elegidas, se pueden comparar %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln elegida</numerusform>
            <numerusform>%Ln elegidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Elige de dos a cuatro piezas</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Más recientes</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Precio: de menor a mayor</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Precio: de mayor a menor</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Ya lo has visto todo (%Ln pieza)</numerusform>
            <numerusform>Ya lo has visto todo (%Ln piezas)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Colección: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Elige una talla</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Talla</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Recomendada para ti: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>En tu carrito</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Sustituir</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Dejar fuera</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 de %Ln pieza</numerusform>
            <numerusform>%L1 de %Ln piezas</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>En lugar de: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>De momento no hay nada parecido.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>La elección de Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Tu look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Elige las tallas, sustituye lo que te guste menos y deja fuera lo que ya tienes.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>pulg.</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Tus medidas</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira calcula tus tallas a partir de ellas. Pasan a tu conversación, y una copia queda en este equipo hasta que cierres sesión.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Métrico</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Estatura (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>pies</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Peso (%1)</translation>
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
        <translation>Pecho (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Cintura (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Cadera (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Déjalas vacías si no las sabes.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Corte preferido</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Enviar a Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Eliminar de este equipo</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Crear un look con ella</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Elegir talla y añadir al carrito</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Escribe a %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look con: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Mis piezas · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Un look con mis piezas</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Clima</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Ver el look: %Ln pieza, en tu talla</numerusform>
            <numerusform>Ver el look: %Ln piezas, todas en tu talla</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nuevo tema</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Temas…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Un look con mis piezas…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Mis medidas…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Clima…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Mostrar junto a la página</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Sugerencias</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Enviar: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Conversación con %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Nombre del tema</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>¿Eliminar «%1»?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Temas</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Tú</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Escribir mis medidas</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 usa primero estas y añade algo nuevo solo donde hace falta.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Aún no hay piezas para combinar</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Aquí aparecen las piezas de tu carrito y de tu lista de deseos.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln elegida, es el máximo</numerusform>
            <numerusform>%Ln elegidas, es el máximo</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>En tu carrito</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>En tu lista de deseos</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>¿Dónde estás? El look irá con el día.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Un look para este clima</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Usar mi ubicación</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>¿Para qué ocasión te vistes?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Cuéntale a %1 la ocasión, una pieza que te encanta o un presupuesto, y ella crea el look.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Inicia sesión para ver lo relacionado con tus pedidos y alertas.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Atención al cliente</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Inicia sesión para ver tus notificaciones</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Nada nuevo</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Aquí te contamos qué pedidos están en camino, qué vuelve al stock y qué baja de precio.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Lo relacionado con tus pedidos y las piezas que sigues aparecerá aquí.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>No leído</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Marcar todo como leído</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Ajustes de notificaciones</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Entrega prevista: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Pedido</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Fecha del pedido: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Paquete</numerusform>
            <numerusform>Paquetes</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Piezas</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Devoluciones y reembolsos</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Este pedido no está aquí</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Tu nuevo pedido aparecerá aquí en unos minutos.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Puede que pertenezca a otra cuenta.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Inicia sesión para ver este pedido</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Un paquete se puede seguir por su número, sin cuenta.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Cantidad: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculto</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Volver a mostrar el pedido</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Ocultar pedido</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Qué pedidos</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>En camino</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Entregado</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Todos tus pedidos están ocultos</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Nada en camino</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Aún no hay nada entregado</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Sin devoluciones</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Algunos están ocultos.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Ver pedidos ocultos</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Todos los pedidos</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Tu pedido está llegando a esta página</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Aún no hay pedidos</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Lo que pidas aparecerá aquí, con su recorrido hasta ti.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Inicia sesión para ver tus pedidos</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Dónde están, qué contienen y cómo devolver algo.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Ya no aparece entre tus pedidos en este equipo.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Paso %L1 de %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Dirección de entrega</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Iniciar una devolución</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Paquete %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Este número aún no se conoce</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>El transportista puede tardar un día en registrar un paquete nuevo.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Abrir la página del transportista</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>El transportista aún no ha informado de él.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>El recorrido del paquete</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>No disponible por ahora</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Esta función está en pausa por ahora. Inténtalo más tarde.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Esta pieza no está disponible</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Puede que se haya agotado definitivamente o que no se venda aquí (%1).</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Te escribiremos cuando cueste menos</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Avísame si baja de precio</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln pieza cuesta menos que cuando la viste</numerusform>
            <numerusform>%Ln piezas cuestan menos que cuando las viste</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Aún no hay nada que vigilar</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Ahora no hay bajadas de precio</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Guarda o mira una pieza y verás aquí cuándo cuesta menos.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Tus piezas guardadas y vistas cuestan lo mismo que cuando las viste, o las viste en otra moneda.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Venta final</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Foto %L1 de %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, foto %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Ver todo</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>No me interesa</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Después de %Ln día: %1</numerusform>
            <numerusform>Después de %Ln días: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>La tienda respondió: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Opiniones</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Más opiniones</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Lo más destacado</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Preguntas y respuestas</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Cumpleaños</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Elegir una fecha</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>El correo con el que inicias sesión</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Descartar cambios</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Con nosotros desde %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Boletines</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Por correo</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Novedades y ofertas, a %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Por SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Indica antes tu teléfono arriba</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Inicia sesión para ver tu perfil</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Tu nombre, tu teléfono y lo que podemos enviarte.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Descubrir</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Echa un vistazo y encontrarás aquí lo que combina.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Visto hace poco</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Borrar todo</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Aún no hay historial</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Las piezas que miras se reúnen aquí, para que vuelvas a encontrarlas.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Inicia sesión y te escribiremos cuando vuelva.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>El correo irá a %1. Haz clic otra vez si ya no lo quieres.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>El correo irá a %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Ampliar foto %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln resultado para «%1»</numerusform>
            <numerusform>%Ln resultados para «%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>¿Qué buscas?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Sin resultados para «%1»</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Revisa la ortografía, prueba una palabra más amplia o explora las novedades.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Nada coincide con estos filtros</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Quita uno o dos filtros para ver más de «%1»</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>¿Cerrar sesión?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Tu carrito y tu lista de deseos quedan en este equipo. Tus pedidos y tu membresía vuelven cuando inicies sesión de nuevo.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tabla de tallas</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Unidad de las tallas</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Orden: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>De momento no hay herramientas.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Número de paquete o de pedido</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Está en el correo que te avisó del envío.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>No conocemos este número. Revísalo o inténtalo mañana: un paquete nuevo puede tardar un día en aparecer.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Esta página no está disponible</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Puede que se haya movido o que llegue con otra versión.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Haz clic en el corazón de una pieza y te esperará aquí. También vigilamos su precio.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Tu cuenta: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Buscando tu cuenta…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>No hay ninguna sesión iniciada</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Los pedidos, las alertas y la membresía requieren una cuenta. Mirar y comprar, no.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Sigue al escritorio entre claro y oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Marco de ventana del escritorio</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Una barra de título sobre las pestañas, como en otras ventanas</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Ir</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Lo que se dice</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Di qué buscas o para qué es.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Cancelar la llamada</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Seguir en el chat, para escribir también</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Llamada con %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Duración de la llamada: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Mostrar en el chat</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Cerrar y seguir en el chat</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Terminar la llamada y cerrar</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Solo la imagen</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Mostrar la llamada con %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Llamada con %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Ampliar a página completa</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Síguelo cuando quieras en Pedidos.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Recargar esta página</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Pago seguro en Shopify  ·  Tu carrito queda como está</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Un enlace de esta página lleva fuera del pago, a %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Abrir en el navegador</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>El pago no se puede mostrar aquí</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Continuar en el navegador</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET no está configurado</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Ejecuta scripts/sync-secrets.sh en la carpeta del proyecto y vuelve a compilar.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>General</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>General</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>País y moneda</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Idioma de la tienda</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Abrir las piezas junto a la cuadrícula</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>En ventanas anchas, la pieza se muestra al lado de donde la encontraste</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Medidas en</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centímetros y kilogramos</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Pulgadas y libras</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Página sin título</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Pausar la presentación</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Iniciar la presentación</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>No se pudo cargar esta foto</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>País e idioma: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>País e idioma</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Buscar idiomas</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Buscar países y monedas</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Idiomas</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Países</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Ningún idioma coincide con «%1»</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Ningún país coincide con «%1»</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>En la ventana</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Un aviso en la parte superior, durante unos segundos.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>En el escritorio</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Donde tu escritorio muestra las notificaciones, también sin ninguna ventana abierta.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Con sonido</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Contador en el icono de la aplicación</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Cuántas te quedan por leer.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Mostrar un ejemplo</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Sobre qué</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Ya no aparecerá en tus recomendaciones en este equipo.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panel lateral</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Abrir en una pestaña nueva</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Cerrar el panel lateral</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Ancho del panel lateral</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Ayudar a la tienda a elegir qué mostrar</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Le indica qué páginas se abren, qué piezas se miran, se añaden al carrito y se compran, y cuándo se cerró la aplicación de forma inesperada, sin tu nombre. Si lo desactivas, solo se envía lo esencial.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>En cualquier caso</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Lo esencial es lo que tú pides</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Las páginas que abres, tus búsquedas, tu carrito y tus pedidos tienen que llegar a la tienda.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Lo que guardas queda en este equipo</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Tu lista de deseos, lo que viste y lo que buscaste, hasta que lo borres.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Tu sesión está en el llavero</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Si no lo hay, en un archivo que solo tú puedes leer. Caduca a los 60 días y siempre que cierras sesión.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Captura de pantalla guardada</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>No se pudo guardar la captura de pantalla</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Comprueba que haya espacio en tu carpeta Imágenes.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Mostrar carpeta</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Busca o pega un enlace</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Buscar por imagen…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Secciones</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Continuar con %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Iniciando sesión…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 se abre en tu navegador. Inicia sesión allí y la tendrás iniciada aquí.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Copiar dirección</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Para un navegador que no se abrió solo</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>¿Aquí no pasó nada?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Pega el enlace con el que terminó tu navegador</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Empieza por «wrenfieldstore://». Algunos navegadores lo muestran en la barra de direcciones.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Terminar de iniciar sesión</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Crea tu cuenta</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Inicia sesión en tu cuenta</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Formas de iniciar sesión</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Código por correo</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Enviamos un código a %1. Puede tardar un minuto en llegar.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Primero te enviamos un código por correo, para comprobar que la dirección es tuya.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Te enviamos un código por correo para iniciar sesión. No necesitas contraseña.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Código de verificación</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Reenviar en %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Reenviar</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Reenviar el código</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Contraseña (6 caracteres o más)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nombre (opcional)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>¿Olvidaste la contraseña? Inicia sesión con un código por correo</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Enviarme un código</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>o continúa con</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Dejar de escuchar el micrófono</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Probar el micrófono</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Está en uso para la llamada.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Di algo: la barra sigue tu voz. Nada sale de este equipo.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Muestra el volumen de tu voz. Nada sale de este equipo.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Altavoz</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 silencia el micrófono estés donde estés, mientras dura una llamada.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M silencia el micrófono en la ventana de una llamada.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Buscar «%1»</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Visto y guardado</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>No se nos ocurre ninguna pieza. Intro busca en todas.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>para elegir</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>para cerrar</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Quitar «%1» de las búsquedas recientes</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Foto: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Se abre en el navegador</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Escribe un mensaje</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Adjuntar una foto o un PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Fotos y PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Suelta aquí una foto o un PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>¿En qué podemos ayudarte?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Pregunta por un pedido, una devolución o tu talla. Las fotos también ayudan.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>¿Dónde está mi pedido?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Quiero devolver algo</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>¿Qué talla me conviene?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Cerrar %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nueva pestaña a la derecha</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Desfijar pestaña</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Fijar pestaña</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Mover pestaña a una ventana nueva</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Reabrir pestaña cerrada</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Cerrar pestaña</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Cerrar las demás pestañas</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Expandir la barra lateral</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Contraer la barra lateral</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Pestañas</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nueva pestaña</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Quitado de: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Última comprobación: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Aún sin comprobar</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Esta copia de LOOMSTREET no puede actualizarse sola.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET busca versiones nuevas por sí solo.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Por ahora, LOOMSTREET no busca versiones nuevas por sí solo.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Las versiones nuevas llegan de donde lo obtuviste. Aun así, puedes comprobarlo aquí.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Al iniciarse y cada seis horas. Lo que encuentra se descarga en segundo plano y se instala cuando sales; si no es posible, te avisa.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>La tienda lo ha pausado. Aun así, puedes comprobarlo aquí.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Qué hay de nuevo</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Cerrar ventana</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Conexión segura con %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>La conexión no es segura</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Tu cuenta se ha eliminado.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>La sesión se cerró antes de que pudiera eliminarse tu cuenta. Iníciala de nuevo para eliminarla.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Envío</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Gratis</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Impuestos</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln paquete</numerusform>
            <numerusform>%Ln paquetes</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Confirmado</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Empaquetado</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>A la espera del transportista</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>En reparto</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Problema de entrega</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Devolución solicitada</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Devolución aprobada</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Reembolsado</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Devolución rechazada</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 y %Ln más</numerusform>
            <numerusform>%1 y %Ln más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Usa como máximo %Ln carácter.</numerusform>
            <numerusform>Usa como máximo %Ln caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Escribe un teléfono, por ejemplo %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Escribe una fecha, por ejemplo %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Escribe una fecha pasada.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Algún dato no se aceptó. Revísalo e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Escribe un correo electrónico válido.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>El código es incorrecto o ha caducado. Pide uno nuevo.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Demasiados intentos. Espera un minuto e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>El correo y la contraseña no coinciden. Inténtalo de nuevo o inicia sesión con un código por correo.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Esta forma de iniciar sesión aún no está disponible.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Esa cuenta no tiene un correo que podamos usar. Prueba otra forma.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Se canceló el inicio de sesión.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>No se pudo iniciar sesión. Inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Escribe los seis dígitos del código.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Elige una contraseña de 6 caracteres o más.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Escribe tu contraseña. Tiene 6 caracteres o más.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Ese no es el enlace con el que terminó el inicio de sesión. Empieza por «wrenfieldstore://».</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Centro de ayuda de LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Condiciones</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nueva ventana</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Fijar o desfijar pestaña</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Mover pestaña hacia atrás</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Mover pestaña hacia adelante</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Abrir el producto del panel lateral en página completa</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Abrir el producto del panel lateral en una pestaña nueva</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Hacer una captura de pantalla</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Ir al inicio de la sección</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Pestaña siguiente</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Pestaña anterior</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Destacados</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Más recientes</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Precio: de menor a mayor</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Precio: de mayor a menor</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Más vendidos</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Mujer</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Hombre</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Lujo</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Bolsos</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Accesorios</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Desde %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Hasta %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Venta final</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Solo queda uno</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Solo queda %Ln</numerusform>
            <numerusform>Solo quedan %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Relevancia</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Esta pieza no se puede devolver</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Revisa talla y color antes de pedirla</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Hecha para ti</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Solo se devuelve si llega defectuosa</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Se hace por encargo: tarda un poco más</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>En 30 días, sin usar y con todo lo que incluía</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Guarda la caja, la funda y los papeles</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>En 30 días, con las suelas intactas y en su caja</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Pruébatelos primero en casa</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>En 30 días, sin usar y con las etiquetas</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Elige primero: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln artículo en tu carrito</numerusform>
            <numerusform>%Ln artículos en tu carrito</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>No se pudo aplicar el código. Inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>«%1» no se aplica a los artículos de tu carrito.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Ya tienes envío GRATIS a todo el mundo</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Añade %1 más y el envío a todo el mundo es GRATIS</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Pedido realizado. Aparecerá en Pedidos en unos minutos.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Pedido %1 realizado. Aparecerá en Pedidos en unos minutos.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln pieza  ·  confirmación enviada a tu correo</numerusform>
            <numerusform>%Ln piezas  ·  confirmación enviada a tu correo</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>La página tardó demasiado en cargarse.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>La página lleva fuera del pago.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>La página dejó de funcionar.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>No se pudo abrir el pago. Inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Ahora %1 menos</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>el trabajo</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>una cita</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>fiestas</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>bodas</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>las vacaciones</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>viajar</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>el día a día</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>el fin de semana</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>ir a clase</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>entrevistas</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>la graduación</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>festivales</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>la playa</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>salir de noche</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>el brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>el gimnasio</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>eventos formales</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Últimas novedades</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Según lo que te encanta</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Nuevo esta semana</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Nuevo esta semana</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Elegido con mimo</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Nuevo esta semana · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Según lo que te encanta</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Le encanta a gente como tú</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Según lo que has estado viendo</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Ahora es tendencia</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Coincide con tu búsqueda: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Porque te encanta el estilo %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Para %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Selección de estilo %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>dulce</translation>
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
        <translation>elegante</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimalista</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romántico</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>urbano</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>gótico</translation>
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
        <translation>francés</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>atrevido</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>casual</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>festival</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>clásico</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>deportivo</translation>
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
        <translation>coreano</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japonés</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>neochino</translation>
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
        <translation>lujo silencioso</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>sexy</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>tierno</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>cool</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>femenino</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>andrógino</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>formal</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>glam</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>vanguardista</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>utilitario</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>western</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>resort</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Rebajas</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Bandeja de entrada</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Demasiados intentos. Espera un momento e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Tu sesión ha caducado. Iníciala de nuevo.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Escribe tu correo electrónico.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Algunos datos no parecen correctos. Revísalos e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET tiene problemas en este momento. Inténtalo en un rato.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>No funcionó. Inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Llegó una respuesta inesperada. Inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>No se pudo conectar con LOOMSTREET. Inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Falta la configuración de la aplicación.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>La solicitud tardó demasiado. Inténtalo de nuevo.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln notificación más te espera en tu bandeja de entrada.</numerusform>
            <numerusform>%Ln notificaciones más te esperan en tu bandeja de entrada.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Avisos del sistema</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Novedades de la cuenta y del servicio</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Estado de los pedidos</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Pedido confirmado, enviado y entregado</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Reembolsos y devoluciones</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Reembolsos emitidos y estado de las devoluciones</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Respuestas de atención al cliente</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Cuando atención al cliente te responde</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Las piezas por las que preguntaste vuelven a estar disponibles</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Piezas guardadas o vistas bajan de precio</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Actividad en Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Me gusta, comentarios, nuevos seguidores y mensajes</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Cambios de nivel, puntos y cupones nuevos</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Promociones y eventos</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Rebajas, lanzamientos y eventos de la tienda</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Envió un archivo adjunto</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Pedido realizado</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Tu pedido está confirmado. Aparecerá en Pedidos en unos minutos.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>El pedido %1 está confirmado. Aparecerá en Pedidos en unos minutos.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET no pudo actualizarse</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Haz clic en Actualizar, en la parte superior de la ventana, para instalar la nueva versión desde la imagen de disco.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Vista previa de notificación</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Las novedades de tus pedidos y las respuestas de atención al cliente aparecerán aquí.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Armario</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Todo lo que tienes, en un solo lugar</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Estudio de outfits</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Combina piezas y míralas como un conjunto</translation>
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
        <translation>Los outfits que guardaste</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Ideas de outfits</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Nuevas formas de llevar lo que hay en tu armario</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Consejo de talla</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Tus medidas y la talla que te va</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Buscar por imagen</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Encuentra una pieza a partir de una foto</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Hasta cuatro piezas, lado a lado</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Todo está al día</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Descargando LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Comprobando la descarga…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Instalando LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>No se pudieron buscar actualizaciones</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>No se pudo descargar la actualización</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Listo para instalar</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Instalar la actualización</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>La versión %1 está lista para instalarse</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 es la versión más reciente.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET se cierra y la nueva versión ocupa su lugar.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Descargada. Reinicia la aplicación para terminar, o se instalará la próxima vez que salgas.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>En la ventana que se acaba de abrir, arrastra LOOMSTREET a Aplicaciones y elige Reemplazar. Después vuelve a abrir LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET no pudo reemplazarse en este equipo. Instala la nueva versión desde la imagen de disco. Tarda unos segundos.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>La versión que tienes ya no tiene soporte.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>La actualización está descargada. Reinicia LOOMSTREET para terminar, o se instalará la próxima vez que salgas.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>No se pudieron buscar actualizaciones. Revisa tu conexión e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>La descarga falló (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>La descarga quedó incompleta o cambió en el camino. Inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>No se pudo leer el archivo descargado.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>La descarga no está firmada por LOOMSTREET, así que no se abrió.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Descargar e instalar</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Reiniciar para actualizar</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Abrir la imagen de disco</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Parece que no tienes conexión.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira tardó demasiado en responder.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Envías mensajes demasiado rápido. Espera un momento.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Este mensaje no se pudo enviar tal como está.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET tiene problemas en este momento.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>No se pudo conectar con LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Elige las tallas de: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Agotado mientras tanto y sin añadir: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>No se pudo abrir el pago. Revisa tu conexión e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Esa estatura o ese peso no parecen correctos. Revisa los números y las unidades.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Una de estas medidas no parece correcta. Revisa el número o déjala vacía.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Holgado</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Ajustado</translation>
    </message>
    <message>
        <source>Regular</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Regular</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Cómo combinar esta pieza: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Este mensaje no se ha confirmado. Puedes intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>La conversación está al día</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira está respondiendo</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira está respondiendo. Podrás enviar esto en un momento.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Los temas se guardan en este equipo. Mira conserva la memoria de sus conversaciones contigo.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Ayúdame a encontrar algo</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Un look con mi armario</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Qué ponerme esta noche</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET no puede ver dónde estás. Escribe tu ciudad.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>No se pudo encontrar tu ubicación. Escribe tu ciudad.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>No conocemos esa ciudad. Prueba con una más grande que esté cerca.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira no puede contestar ahora. Inténtalo en un momento.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira está en otra llamada. Inténtalo en un minuto.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>La línea se cortó un instante. ¿Me lo repites?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Se cortó la llamada. Vuelve a llamar para seguir hablando.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>El acceso al micrófono está desactivado. Actívalo en Ajustes del Sistema › Privacidad y seguridad › Micrófono y vuelve a llamar.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>No se pudo activar el micrófono. Comprueba que haya uno conectado y vuelve a llamar.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Silenciar el micrófono durante una llamada</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Añadido a tu carrito</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Añadido a tu carrito: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>No se pudo añadir. Prueba desde la página del producto.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Vamos allá…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Abriendo %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Abrigos y chaquetas</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Partes de arriba</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Partes de abajo</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Vestidos</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Zapatos</translation>
    </message>
    <message>
        <source>Extras</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Extras</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Templado</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Soleado</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Parcialmente nublado</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Nublado</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Niebla</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Llovizna</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Lluvia</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Nieve</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Chubascos</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Tormenta</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Este archivo ya no está.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>No se pudo leer este archivo.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Este archivo está vacío.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Este archivo ocupa más de 10 MB. Elige uno más pequeño.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Solo se pueden enviar fotos y archivos PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Puede que este mensaje no haya llegado.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Ocultos</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>En camino</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Entregados</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Escribe a Atención al cliente</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Conversación con Atención al cliente</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
</TS>
