<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Você está aqui</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Abrir página inteira</translation>
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
        <translation>Ver tudo</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter envia, Shift+Enter começa uma nova linha</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar de novo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Remover %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Anteriores</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Voltar ao ano</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Posteriores</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Expandido</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Recolhido</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Ir para o mais recente</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln nova mensagem</numerusform>
            <numerusform>%Ln novas mensagens</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Parece que você está sem conexão. Verifique-a e tente de novo.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Ocultar a senha</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Mostrar a senha</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, antes %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Esgotado</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Em andamento</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Remover da lista de desejos</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Salvar na lista de desejos</translation>
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
        <translation>Próximo</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, esgotado</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, recomendado para você</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Avaliação: %L1 de 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Avaliação: %L1 de 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Menos</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Mais</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Sua conta</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Sair da conta</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Seu estilo, sempre lembrado</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Aqui você pode ver e comprar tudo sem conta. Com uma, a loja sabe onde estão seus pacotes e o que você está esperando.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Criar conta</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Pedidos em um só lugar</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Onde está cada pacote, e devoluções sem procurar o recibo</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Um aviso quando importa</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Seu tamanho voltou ou o preço baixou</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Fidelidade e cupons</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Pontos, níveis e suas vantagens</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Um pagamento que conhece você</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Seu endereço já está lá</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Atendimento ao cliente</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Pedidos, devoluções e tamanhos</translation>
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
        <translation>A caminho e anteriores</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Rastrear um pacote</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Pelo número dele ou do pedido</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Devoluções</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Devolver algo</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Para você</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Lista de desejos</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Nada salvo ainda</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln peça</numerusform>
            <numerusform>%Ln peças</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertas</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Disponíveis de novo e preços mais baixos</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Fidelidade</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Seu nível e seus pontos</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Cupons</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Para usar no pagamento</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Sem conta</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Nome, aniversário e newsletters</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Privacidade</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>O que a loja sabe de você</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Guardado neste computador</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Excluir conta…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Seu chaveiro não responde</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Ele protege o seu acesso, e sem ele não é possível entrar. Desbloqueie-o e tente de novo.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Disponível de novo</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Queda de preço</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Voltou ao estoque</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Agora mais barato</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 ao criar o alerta</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Parar este alerta</translation>
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
        <translation>Escrevemos para %1 quando uma peça volta ou o preço dela cai.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Nenhum alerta ainda</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Em uma peça esgotada no seu tamanho, clique em “Avise-me quando voltar”. Em qualquer outra, em “Avise-me se o preço cair”.</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Novidades</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Entre para ver seus alertas</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Avisamos quando uma peça volta no seu tamanho ou custa menos.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Não enviaremos e-mails sobre ela.</numerusform>
            <numerusform>Não enviaremos e-mails sobre elas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln peça</numerusform>
            <numerusform>%1, %Ln peças</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Designers</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>
            <numerusform>%Ln designer</numerusform>
            <numerusform>%Ln designers</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Buscar um designer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Letras</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Outros designers</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Designers com %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Nenhum designer corresponde a “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Confira a grafia ou percorra todos.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Ver todos os designers</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Nada por aqui ainda</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Toda semana chegam peças novas.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Explorar</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln avaliação</numerusform>
            <numerusform>%Ln avaliações</numerusform>
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
        <translation>Pré-venda</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Mais escolhida: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Como combinar esta peça</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Ao lado de peças que você salvou ou viu</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>Frete GRÁTIS para todo o mundo</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Em compras a partir de %1</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Bom saber</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Impostos de importação incluídos</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Frete calculado no pagamento</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Enviaremos um e-mail quando voltar</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Avise-me quando voltar</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Adicionado</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Adicionar ao carrinho</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Clique para cancelar</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Abrindo o pagamento…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Comprar agora</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Chamada com %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Abrir em uma janela</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Encerrar</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Encerrar a chamada</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Mostrar a chamada</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Ligar para %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Ligar de novo</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>O microfone está ligado</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>O microfone está silenciado</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Chamando…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Pensando</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Falando</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Silenciado</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Ouvindo</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Chamada encerrada</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Ativar microfone</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Código de desconto</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Não foi possível carregar seu carrinho</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Seus itens estão seguros. Verifique sua conexão e tente de novo.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Seu carrinho está vazio</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Os itens que você adicionar aparecerão aqui.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Continuar comprando</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Retirado do carrinho: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Seu carrinho anterior expirou. Havia %Ln item nele.</numerusform>
            <numerusform>Seu carrinho anterior expirou. Havia %Ln itens nele.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Colocar de volta</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Quantidade: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Remover do carrinho</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Dispensar</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Carrinho</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Carrinho</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Mostrar como painel lateral</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Subtotal</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Desconto</translation>
    </message>
    <message>
        <source>Total</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Total</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Impostos de importação incluídos · Frete calculado no pagamento</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Finalizar compra</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Conclua a compra na janela de pagamento. Seu carrinho fica como está.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Não disponível</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Coleção</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln novidade nos últimos 30 dias</numerusform>
            <numerusform>%Ln novidades nos últimos 30 dias</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Esta coleção não está disponível</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Talvez tenha mudado de nome ou não seja vendida aqui (%1)</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Nenhum item corresponde a estes filtros</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Remova um filtro para ver mais.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Complete o look</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Peças para combinar</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Também admiradas</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Por quem viu esta peça</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Você também pode gostar</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Adicionar peças para comparar</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Adicionar uma peça</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Da sua lista de desejos e do que você viu</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Salve ou veja peças e adicione-as aqui.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Comparar com %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Tamanhos</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Composição</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Remover da comparação</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Não disponível no seu país.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>não informado</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Tamanhos: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Voltar ao início</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>O que os outros vestem</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Dar uma olhada</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Seguindo</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Novidades dos seus designers</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Ver as novidades</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Guarda-roupa</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>O que vestir hoje?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Abrir o guarda-roupa</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Seus pedidos e alertas</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Seu programa de fidelidade</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Ver as vantagens</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Onde está o meu pacote?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Pedido %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Ver o pedido</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Quedas de preço</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Suas peças custam menos agora</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Guarde o que você ama</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln peça salva</numerusform>
            <numerusform>%Ln peças salvas</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Ver a lista de desejos</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Excluir sua conta?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Seu perfil, seus alertas, seu programa de fidelidade e a lista dos seus pedidos serão excluídos para sempre. Os pedidos a caminho chegarão mesmo assim. Isso não pode ser desfeito.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Digite seu endereço de e-mail para confirmar</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Excluir conta</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Coleções</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Limpar todos os filtros</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Buscar: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Nada com esse nome</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Ver menos</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Ver tudo (%Ln)</numerusform>
            <numerusform>Ver tudo (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Ver peças</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Ver %Ln peça</numerusform>
            <numerusform>Ver %Ln peças</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Fechar filtros</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln escolhida, até %L1 para comparar</numerusform>
            <numerusform>%Ln escolhidas, até %L1 para comparar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln escolhida</numerusform>
            <numerusform>%Ln escolhidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Escolha de duas a quatro peças</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Selecionar</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Mais recentes</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Preço: menor para maior</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Preço: maior para menor</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Você já viu tudo (%Ln peça)</numerusform>
            <numerusform>Você já viu tudo (%Ln peças)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Coleção: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Escolha um tamanho</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Recomendado para você: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>No seu carrinho</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Deixar de fora</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 de %Ln peça</numerusform>
            <numerusform>%L1 de %Ln peças</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>No lugar de: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Nada parecido no momento.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>A escolha da Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Seu look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Escolha os tamanhos, substitua o que agrada menos e deixe de fora o que você já tem.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>pol.</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Suas medidas</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>A Mira calcula seus tamanhos a partir delas. Elas entram na conversa, e uma cópia fica neste computador até você sair da conta.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidade</translation>
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
        <translation>Altura (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>pés</translation>
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
        <translation>Busto (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Cintura (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Quadril (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Se não souber, deixe em branco.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Caimento preferido</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Enviar para a Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Excluir deste computador</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Montar um look com ela</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Escolher tamanho e adicionar ao carrinho</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Escreva para %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look com: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Minhas peças · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Um look com minhas peças</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Clima</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mais</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Ver o look: %Ln peça, no seu tamanho</numerusform>
            <numerusform>Ver o look: %Ln peças, todas no seu tamanho</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Novo assunto</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Assuntos…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Um look com minhas peças…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Minhas medidas…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Clima…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Mostrar ao lado da página</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Sugestões</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Enviar: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Conversa com %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Nome do assunto</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Excluir “%1”?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Manter</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Assuntos</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Você</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Informar minhas medidas</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 usa primeiro estas e só acrescenta algo novo onde falta.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Ainda não há nada para combinar</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>As peças do seu carrinho e da sua lista de desejos aparecem aqui.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln escolhida, é o máximo</numerusform>
            <numerusform>%Ln escolhidas, é o máximo</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>No seu carrinho</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Na sua lista de desejos</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Onde você está? O look vai combinar com o dia.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Um look para este clima</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Cidade</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Usar minha localização</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Para qual ocasião você vai se vestir?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Conte para %1 a ocasião, uma peça que você ama ou um orçamento, e ela monta o look.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Entre para ver o que diz respeito aos seus pedidos e alertas.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tudo</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Atendimento ao cliente</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificações</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Entre para ver suas notificações</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Nada de novo</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Pedidos a caminho, peças de volta e preços mais baixos são anunciados aqui.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>O que diz respeito aos seus pedidos e às peças que você segue estará aqui.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Não lida</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Marcar tudo como lido</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Configurações de notificações</translation>
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
        <translation>Data do pedido: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Pacote</numerusform>
            <numerusform>Pacotes</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Peças</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Devoluções e reembolsos</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Este pedido não está aqui</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Seu novo pedido aparece aqui em alguns minutos.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Ele pode pertencer a outra conta.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Entre para ver este pedido</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Um pacote pode ser rastreado pelo número, sem conta.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Quantidade: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculto</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Mostrar o pedido de novo</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Ocultar pedido</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Quais pedidos</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>A caminho</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Entregue</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Todos os seus pedidos estão ocultos</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Nada a caminho</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Nada entregue ainda</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Nenhuma devolução</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Alguns estão ocultos.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Mostrar pedidos ocultos</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Todos os pedidos</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Seu pedido está chegando a esta página</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Nenhum pedido ainda</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>O que você pede aparece aqui, com o caminho até você.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Entre para ver seus pedidos</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Onde estão, o que contêm e como devolver algo.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Não aparece mais entre seus pedidos neste computador.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Etapa %L1 de %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Endereço de entrega</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Iniciar uma devolução</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Pacote %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Este número ainda não é conhecido</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>A transportadora pode levar um dia para registrar um pacote novo.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Abrir a página da transportadora</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>A transportadora ainda não informou nada.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>O percurso do pacote</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Temporariamente indisponível</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Este recurso está pausado por enquanto. Tente mais tarde.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Remover da lista</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Esta peça não está disponível</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Talvez tenha esgotado de vez ou não seja vendida aqui (%1).</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Enviaremos um e-mail quando custar menos</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Avise-me se o preço cair</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln peça custa menos do que quando você a viu</numerusform>
            <numerusform>%Ln peças custam menos do que quando você as viu</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Nada para acompanhar ainda</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Nenhuma queda de preço no momento</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Salve ou veja uma peça, e aqui você saberá quando ela custar menos.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Suas peças salvas e vistas custam o mesmo que quando você as viu, ou foram vistas em outra moeda.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Venda final</translation>
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
        <translation>Ver tudo</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Não me interessa</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Após %Ln dia: %1</numerusform>
            <numerusform>Após %Ln dias: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Resposta da loja: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Avaliações</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Mais avaliações</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Destaques</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Perguntas e respostas</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefone</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Aniversário</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Escolher uma data</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>O endereço com que você entra</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Descartar alterações</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvo</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Com a gente desde %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Newsletters</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Por e-mail</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Novidades e ofertas, para %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Por SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Informe antes seu telefone acima</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Entre para ver seu perfil</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Seu nome, seu telefone e o que podemos enviar a você.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Descobrir</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Dê uma olhada e você encontrará aqui o que combina.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Vistos recentemente</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Limpar tudo</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Nenhum histórico ainda</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>As peças que você vê ficam reunidas aqui, para você encontrá-las de novo.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Entre, e enviaremos um e-mail quando voltar.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>O e-mail vai para %1. Clique de novo se não quiser mais.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>O e-mail vai para %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Ampliar foto %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln resultado para “%1”</numerusform>
            <numerusform>%Ln resultados para “%1”</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>O que você procura?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Nenhum resultado para “%1”</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Confira a grafia, tente uma palavra mais ampla ou veja as novidades.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Nada corresponde a estes filtros</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Remova um ou dois filtros para ver mais de “%1”</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Sair da conta?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Seu carrinho e sua lista de desejos ficam neste computador. Os pedidos e o programa de fidelidade voltam quando você entrar de novo.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tabela de tamanhos</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Unidade dos tamanhos</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Ordenar: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Não há ferramentas no momento.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Número do pacote ou do pedido</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Está no e-mail que avisou do envio.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Não conhecemos este número. Confira-o ou tente de novo amanhã: um pacote novo pode levar um dia para aparecer.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Rastrear</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Esta página não está disponível</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Talvez tenha mudado de lugar ou chegue com outra versão.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Clique no coração de uma peça e ela espera por você aqui. Também ficamos de olho no preço.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Sua conta: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Procurando sua conta…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Nenhuma conta conectada</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Pedidos, alertas e fidelidade precisam de uma conta. Ver e comprar, não.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como a área de trabalho</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Segue a área de trabalho entre claro e escuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Moldura da janela da área de trabalho</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Uma barra de título acima das abas, como nas outras janelas</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Exibir</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Ir</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>O que é dito</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Diga o que você procura ou para que é.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Cancelar a chamada</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Continuar no chat, para escrever também</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Chamada com %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Duração da chamada: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Mostrar no chat</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Fechar e continuar no chat</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Encerrar a chamada e fechar</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Só a imagem</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Mostrar a chamada com %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Chamada com %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Expandir para página inteira</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Acompanhe quando quiser em Pedidos.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Recarregar esta página</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Pagamento seguro na Shopify  ·  Seu carrinho fica como está</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Um link desta página leva para fora do pagamento, para %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Abrir no navegador</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>O pagamento não pode ser mostrado aqui</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Continuar no navegador</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET não está configurado</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Execute scripts/sync-secrets.sh na pasta do projeto e compile de novo.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>País e moeda</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Idioma da loja</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Abrir as peças ao lado da grade</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Em janelas largas, a peça aparece ao lado de onde você a encontrou</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Medidas em</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centímetros e quilogramas</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Polegadas e libras</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Página sem título</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Pausar a apresentação</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Iniciar a apresentação</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Diminuir zoom</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Aumentar zoom</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Não foi possível carregar esta foto</translation>
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
        <translation>Buscar países e moedas</translation>
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
        <translation>Nenhum idioma corresponde a “%1”</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Nenhum país corresponde a “%1”</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Na janela</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Um aviso no topo, por alguns segundos.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Na área de trabalho</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Onde o sistema mostra os avisos dos aplicativos, mesmo sem nenhuma janela aberta.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Com som</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Contador no ícone do aplicativo</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Quantas você ainda não leu.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Mostrar um exemplo</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Sobre o quê</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Não aparecerá mais nas recomendações neste computador.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Painel lateral</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Abrir em nova aba</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Fechar o painel lateral</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Largura do painel lateral</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Ajudar a loja a escolher o que mostrar</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Informa a ela quais páginas são abertas, quais peças são vistas, colocadas no carrinho e compradas, e quando o aplicativo fechou inesperadamente, sem o seu nome. Com a opção desativada, só o essencial é enviado.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Em qualquer caso</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>O essencial é o que você pede</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>As páginas que você abre, suas buscas, seu carrinho e seus pedidos precisam chegar à loja.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>O que você guarda fica neste computador</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Sua lista de desejos, o que você viu e o que buscou, até você limpar.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Seu acesso fica no chaveiro</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Se não houver um, em um arquivo que só você pode ler. Expira após 60 dias e sempre que você sai da conta.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Captura de tela salva</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Não foi possível salvar a captura de tela</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Verifique se há espaço na sua pasta Imagens.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Mostrar pasta</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Busque ou cole um link</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Buscar por imagem…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Seções</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Continuar com %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Entrando…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 abre no seu navegador. Entre por lá, e sua conta abre aqui.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Copiar endereço</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Para um navegador que não abriu sozinho</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Não aconteceu nada aqui?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Cole o link em que o navegador terminou</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Começa com “wrenfieldstore://”. Alguns navegadores o mostram na barra de endereço.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Concluir o login</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Crie sua conta</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Entre na sua conta</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Formas de entrar</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Código por e-mail</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Enviamos um código para %1. Pode levar um minuto para chegar.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Primeiro enviamos um código por e-mail, para ter certeza de que o endereço é seu.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Enviamos um código por e-mail para você entrar. Não é preciso ter senha.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Código de verificação</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Reenviar em %L1 s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Reenviar</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Reenviar o código</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Senha (6 caracteres ou mais)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nome (opcional)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Esqueceu a senha? Entre com um código por e-mail</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Receber um código</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>ou continue com</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfone</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Testar</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Parar de ouvir o microfone</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Testar o microfone</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Está em uso na chamada.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Diga algo: a barra acompanha sua voz. Nada sai deste computador.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Mostra o volume da sua voz. Nada sai deste computador.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Alto-falante</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 silencia o microfone de onde você estiver, enquanto durar uma chamada.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M silencia o microfone na janela de uma chamada.</translation>
    </message>
    <message>
        <source>Link</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Link</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Buscar “%1”</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recentes</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Vistos e salvos</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Nenhuma sugestão de peça. Enter busca em todas.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>para escolher</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>para fechar</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Remover “%1” das buscas recentes</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Foto: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Abre no navegador</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Escreva uma mensagem</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Anexar uma foto ou um PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Fotos e PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Solte aqui uma foto ou um PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Como podemos ajudar?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Pergunte sobre um pedido, uma devolução ou seu tamanho. Fotos também ajudam.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Onde está o meu pedido?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Quero devolver algo</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Qual tamanho devo escolher?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Carregando</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Fechar %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nova aba à direita</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Desafixar aba</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Fixar aba</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Mover aba para nova janela</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Reabrir aba fechada</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Fechar aba</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Fechar outras abas</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Expandir a barra lateral</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Recolher a barra lateral</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Abas</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nova aba</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Removido de: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Última verificação: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Ainda não verificado</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Esta cópia do LOOMSTREET não consegue se atualizar sozinha.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>O LOOMSTREET procura novas versões sozinho.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Por enquanto, o LOOMSTREET não procura novas versões sozinho.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>As novas versões vêm de onde você o obteve. Mesmo assim, você pode verificar aqui.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Ao iniciar e a cada seis horas. O que encontra é baixado em segundo plano e instalado quando você sai; se não for possível, você recebe um aviso.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>A loja pausou isso. Mesmo assim, você pode verificar aqui.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Procurar atualizações…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>O que há de novo</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pular esta versão</translation>
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
        <translation>Fechar janela</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Conexão segura com %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>A conexão não é segura</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Sua conta foi excluída.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Sua sessão terminou antes que a conta pudesse ser excluída. Entre de novo para excluí-la.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Frete</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Grátis</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Impostos</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln pacote</numerusform>
            <numerusform>%Ln pacotes</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Confirmado</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Embalado</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Em andamento</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Aguardando a transportadora</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Saiu para entrega</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Problema na entrega</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Devolução solicitada</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Devolução aprovada</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Reembolsado</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Devolução recusada</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 e mais %Ln</numerusform>
            <numerusform>%1 e mais %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Use no máximo %Ln caractere.</numerusform>
            <numerusform>Use no máximo %Ln caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Digite um telefone, por exemplo %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Digite uma data, por exemplo %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Digite uma data passada.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Algo que você digitou não foi aceito. Confira e tente de novo.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Digite um endereço de e-mail válido.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>O código está errado ou expirou. Peça um novo.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Muitas tentativas. Espere um minuto e tente de novo.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>O e-mail e a senha não conferem. Tente de novo ou entre com um código por e-mail.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Esta forma de entrar ainda não está disponível.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Essa conta não tem um e-mail que possamos usar. Tente outra forma.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>O login foi cancelado.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Não foi possível entrar. Tente de novo.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Digite os seis dígitos do código.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Escolha uma senha de 6 caracteres ou mais.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Digite sua senha. Ela tem 6 caracteres ou mais.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Esse não é o link em que o login terminou. Ele começa com “wrenfieldstore://”.</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Central de ajuda da LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Termos</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nova janela</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Fixar ou desafixar aba</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Mover aba para trás</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Mover aba para a frente</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Abrir o produto do painel lateral em página inteira</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Abrir o produto do painel lateral em nova aba</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Fazer uma captura de tela</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Tela cheia</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Ir para o início da seção</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Próxima aba</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Aba anterior</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Destaques</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Mais recentes</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Preço: menor para maior</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Preço: maior para menor</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Mais vendidos</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Feminino</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Masculino</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luxo</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Bolsas</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Acessórios</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>A partir de %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Até %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Venda final</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Só resta um</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Só resta %Ln</numerusform>
            <numerusform>Só restam %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Relevância</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Esta peça não pode ser devolvida</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Confira tamanho e cor antes de pedir</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Feita para você</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Só pode ser devolvida se chegar com defeito</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Feita sob encomenda, leva um pouco mais de tempo</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Em até 30 dias, sem uso, com tudo o que veio junto</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Guarde a caixa, o saquinho e os papéis</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Em até 30 dias, solas sem marcas, na caixa original</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Experimente primeiro dentro de casa</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Em até 30 dias, sem uso, com as etiquetas</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Escolha primeiro: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln item no seu carrinho</numerusform>
            <numerusform>%Ln itens no seu carrinho</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Não foi possível aplicar esse código. Tente de novo.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1” não se aplica aos itens do seu carrinho.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Você ganhou frete GRÁTIS para todo o mundo</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Faltam %1 para o frete GRÁTIS para todo o mundo</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Pedido feito. Ele aparecerá em Pedidos em alguns minutos.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Pedido %1 feito. Ele aparecerá em Pedidos em alguns minutos.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln peça  ·  confirmação enviada para o seu e-mail</numerusform>
            <numerusform>%Ln peças  ·  confirmação enviada para o seu e-mail</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>A página demorou demais para carregar.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>A página leva para fora do pagamento.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>A página parou de funcionar.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Não foi possível abrir o pagamento. Tente de novo.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>Agora %1 a menos</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>o trabalho</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>um encontro</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>festas</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>casamentos</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>as férias</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>viajar</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>o dia a dia</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>o fim de semana</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>as aulas</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>entrevistas</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>a formatura</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>festivais</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>a praia</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>sair à noite</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>o brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>treinar</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>eventos formais</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Recém-chegados</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Com base no que você ama</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Novidades da semana</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Novidade da semana</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Escolhido a dedo</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Novidade da semana · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Com base no que você ama</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Amado por pessoas como você</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Com base no que você tem visto</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Em alta agora</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Combina com a sua busca: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Porque você ama o estilo %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Para %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Seleção no estilo %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>doce</translation>
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
        <translation>romântico</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>streetwear</translation>
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
        <translation>francês</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>ousado</translation>
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
        <translation>clássico</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>esportivo</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>chique</translation>
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
        <translation>japonês</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>neochinês</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>sexy</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>fofo</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>descolado</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>feminino</translation>
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
        <translatorcomment>As in English.</translatorcomment>
        <translation>avant-garde</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>utilitário</translation>
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
        <translation>Início</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Promoções</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Caixa de entrada</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Muitas tentativas. Espere um momento e tente de novo.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Sua sessão expirou. Entre de novo.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Digite seu endereço de e-mail.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Alguns dados não parecem certos. Confira e tente de novo.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>A LOOMSTREET está com problemas agora. Tente de novo daqui a pouco.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Não funcionou. Tente de novo.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Veio uma resposta inesperada. Tente de novo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Não foi possível acessar a LOOMSTREET. Tente de novo.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Falta a configuração do aplicativo.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>A solicitação demorou demais. Tente de novo.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Mais %Ln notificação espera por você na caixa de entrada.</numerusform>
            <numerusform>Mais %Ln notificações esperam por você na caixa de entrada.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Avisos do sistema</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Novidades da conta e do serviço</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Atualizações de pedidos</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Pedido confirmado, enviado e entregue</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Reembolsos e devoluções</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Reembolsos feitos e andamento das devoluções</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Respostas do atendimento ao cliente</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Quando o atendimento ao cliente responde</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>As peças que você aguardava estão disponíveis de novo</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Peças salvas ou vistas ficam mais baratas</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Atividade na Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Curtidas, comentários, novos seguidores e mensagens</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Mudanças de nível, pontos e novos cupons</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Campanhas e eventos</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Promoções, lançamentos e eventos da loja</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Enviou um anexo</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Pedido feito</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Seu pedido está confirmado. Ele aparecerá em Pedidos em alguns minutos.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>O pedido %1 está confirmado. Ele aparecerá em Pedidos em alguns minutos.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>O LOOMSTREET não conseguiu se atualizar</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Clique em Atualizar no topo da janela para instalar a nova versão a partir da imagem de disco.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Prévia de notificação</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>As novidades dos pedidos e as respostas do atendimento ao cliente aparecerão aqui.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Guarda-roupa</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Tudo o que você tem, em um só lugar</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Estúdio de looks</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Combine peças e veja-as juntas</translation>
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
        <translation>Os looks que você guardou</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Ideias de looks</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Novas formas de usar o que está no seu guarda-roupa</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Dica de tamanho</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Suas medidas e o tamanho certo para elas</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Buscar por imagem</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Encontre uma peça a partir de uma foto</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Até quatro peças lado a lado</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Procurando atualizações…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Tudo está em dia</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Baixando LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Verificando o download…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Instalando LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Não foi possível procurar atualizações</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Não foi possível baixar a atualização</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Pronto para instalar</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Instalar a atualização</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>A versão %1 está pronta para instalar</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 é a versão mais recente.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>O LOOMSTREET fecha, e a nova versão toma o lugar.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Baixada. Reinicie para concluir, ou ela será instalada da próxima vez que você sair.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Na janela que acabou de abrir, arraste LOOMSTREET para Aplicativos e escolha Substituir. Depois, abra o LOOMSTREET de novo.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>O LOOMSTREET não conseguiu se substituir neste computador. Instale a nova versão a partir da imagem de disco. Leva só alguns segundos.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>A versão que você tem não tem mais suporte.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>A atualização foi baixada. Reinicie o LOOMSTREET para concluir, ou ela será instalada da próxima vez que você sair.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Não foi possível procurar atualizações. Verifique sua conexão e tente de novo.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>O download falhou (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>O download ficou incompleto ou mudou no caminho. Tente de novo.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Não foi possível ler o arquivo baixado.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>O download não está assinado pela LOOMSTREET, por isso não foi aberto.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Baixar e instalar</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Reiniciar para atualizar</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Abrir a imagem de disco</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Parece que você está sem conexão.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>A Mira demorou demais para responder.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Você está enviando mensagens rápido demais. Espere um momento.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Não foi possível enviar esta mensagem como está.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>A LOOMSTREET está com problemas agora.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Não foi possível acessar a LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Escolha os tamanhos de: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Esgotado nesse meio-tempo e não adicionado: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Não foi possível abrir o pagamento. Verifique sua conexão e tente de novo.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Essa altura ou esse peso não parece certo. Confira os números e as unidades.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Uma destas medidas não parece certa. Confira o número ou deixe em branco.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Solto</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Justo</translation>
    </message>
    <message>
        <source>Regular</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Regular</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Como combinar esta peça: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Esta mensagem não foi confirmada. Você pode tentar de novo.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>A conversa está em dia</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>A Mira está respondendo</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>A Mira está respondendo. Você poderá enviar estas daqui a pouco.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Os assuntos ficam salvos neste computador. A Mira guarda a memória das conversas de vocês.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Ajude-me a encontrar algo</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Um look com o meu guarda-roupa</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>O que vestir esta noite</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>O LOOMSTREET não pode ver onde você está. Digite sua cidade.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Não foi possível encontrar sua localização. Digite sua cidade.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Não conhecemos essa cidade. Tente uma maior por perto.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>A Mira não pode atender agora. Tente de novo daqui a pouco.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>A Mira está em outra chamada. Tente de novo em um minuto.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>A linha falhou um instante. Pode repetir?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>A ligação caiu. Ligue de novo para continuar a conversa.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>O acesso ao microfone está desativado. Ative-o em Ajustes do Sistema › Privacidade e Segurança › Microfone e ligue de novo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Não foi possível iniciar o microfone. Verifique se há um conectado e ligue de novo.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Silenciar o microfone durante uma chamada</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Adicionado ao seu carrinho</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Adicionado ao seu carrinho: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Não foi possível adicionar. Tente pela página do produto.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Vamos lá…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Abrindo %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Casacos e jaquetas</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Partes de cima</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Partes de baixo</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Vestidos</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Sapatos</translation>
    </message>
    <message>
        <source>Extras</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Extras</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Ameno</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Ensolarado</translation>
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
        <translation>Neblina</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Garoa</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Chuva</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Neve</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Pancadas de chuva</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Trovoada</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Este arquivo não existe mais.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Não foi possível ler este arquivo.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Este arquivo está vazio.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Este arquivo tem mais de 10 MB. Escolha um menor.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Só é possível enviar fotos e arquivos PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Esta mensagem pode não ter chegado.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Ocultos</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>A caminho</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Entregues</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Escreva para o atendimento ao cliente</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Conversa com o atendimento ao cliente</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
