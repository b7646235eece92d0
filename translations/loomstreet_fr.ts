<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Vous êtes ici</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Ouvrir en pleine page</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Envoi…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Voir moins</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Entrée pour envoyer, Maj+Entrée pour aller à la ligne</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Retirer %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Plus tôt</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Retour à l’année</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Aller au plus récent</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln nouveau message</numerusform>
            <numerusform>%Ln nouveaux messages</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Vous semblez être hors ligne. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Masquer le mot de passe</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, au lieu de %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Épuisé</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Retirer de la liste d’envies</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Ajouter à la liste d’envies</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, épuisée</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, recommandée pour vous</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Note&#xa0;: %L1 sur 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Note&#xa0;: %L1 sur 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Moins</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Votre compte</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Votre garde-robe, en mémoire</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Ici, tout se regarde et s’achète sans compte. Avec un compte, la boutique sait où sont vos colis et ce que vous attendez.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Créer un compte</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Vos commandes réunies</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Où se trouve chaque colis, et des retours sans chercher de reçu</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Un mot quand ça compte</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Votre taille est de retour ou le prix a baissé</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Fidélité et coupons</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Les points, les niveaux et leurs avantages</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Un paiement qui vous connaît</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Votre adresse y est déjà</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Service client</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Commandes, retours et tailles</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>En route et déjà reçues</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Suivre un colis</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Par son numéro ou celui de la commande</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Retours</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Renvoyer un article</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Pour vous</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Liste d’envies</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Rien d’enregistré pour l’instant</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln pièce</numerusform>
            <numerusform>%Ln pièces</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Retours en stock et baisses de prix</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Fidélité</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Votre niveau et vos points</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Coupons</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>À utiliser au paiement</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Sans compte</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Nom, anniversaire et newsletters</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Confidentialité</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Ce que la boutique sait de vous</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Conservé sur cet ordinateur</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Supprimer le compte…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Votre trousseau ne répond pas</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Il protège votre connexion&#x202f;; sans lui, impossible de s’identifier. Déverrouillez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>De retour en stock</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Baisse de prix</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>À nouveau en stock</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Moins cher</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 lors de votre demande</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Arrêter cette alerte</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln alerte</numerusform>
            <numerusform>%Ln alertes</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Nous vous écrivons à %1 dès qu’une pièce revient ou que son prix baisse.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Aucune alerte pour l’instant</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Sur une pièce épuisée dans votre taille, cliquez sur «&#xa0;Me prévenir de son retour&#xa0;». Sur les autres, «&#xa0;Me signaler une baisse de prix&#xa0;».</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Connectez-vous pour voir vos alertes</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Nous vous prévenons quand une pièce revient dans votre taille ou coûte moins cher.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Nous ne vous enverrons pas d’e-mail à son sujet.</numerusform>
            <numerusform>Nous ne vous enverrons pas d’e-mail à leur sujet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln pièce</numerusform>
            <numerusform>%1, %Ln pièces</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Créateurs</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln créateur</numerusform>
            <numerusform>%Ln créateurs</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Chercher un créateur</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Lettres</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Autres créateurs</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Créateurs en %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Aucun créateur ne correspond à «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Vérifiez l’orthographe ou parcourez-les tous.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Voir tous les créateurs</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Rien ici pour l’instant</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>De nouvelles pièces arrivent chaque semaine.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Explorer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln avis</numerusform>
            <numerusform>%Ln avis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln vendu</numerusform>
            <numerusform>%Ln vendus</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Prévente</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>La plus choisie&#xa0;: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Comment porter cette pièce&#x202f;?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>À côté de vos pièces enregistrées ou vues</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>Livraison OFFERTE dans le monde entier</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Dès %1 d’achat</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Bon à savoir</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Droits de douane inclus</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Frais de livraison calculés au paiement</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Nous vous écrirons dès son retour</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Me prévenir de son retour</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Ajouter au panier</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Cliquez pour annuler</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Ouverture du paiement…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Acheter maintenant</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Appel avec %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Ouvrir dans une fenêtre</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Raccrocher</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Terminer l’appel</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Afficher l’appel</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Appeler %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Rappeler</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Le micro est activé</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Le micro est coupé</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Appel en cours…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Réfléchit</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Parle</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Micro coupé</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Écoute</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Appel terminé</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Réactiver le micro</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Couper le micro</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Code promo</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Impossible de charger votre panier</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Vos articles sont bien gardés. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Votre panier est vide</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Les articles que vous ajoutez s’afficheront ici.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Continuer mes achats</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Retiré du panier&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Votre ancien panier a expiré. Il contenait %Ln article.</numerusform>
            <numerusform>Votre ancien panier a expiré. Il contenait %Ln articles.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Remettre</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Quantité&#xa0;: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Retirer du panier</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Panier</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Panier</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Afficher en panneau latéral</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Sous-total</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Remise</translation>
    </message>
    <message>
        <source>Total</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Total</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Droits de douane inclus · Livraison calculée au paiement</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Paiement</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Terminez votre achat dans la fenêtre de paiement. Votre panier reste tel quel.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>Collection</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Collection</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln nouveauté ces 30 derniers jours</numerusform>
            <numerusform>%Ln nouveautés ces 30 derniers jours</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Cette collection n’est pas disponible</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Elle a peut-être changé de nom ou n’est pas vendue ici (%1)</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Aucun article ne correspond à ces filtres</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Retirez un filtre pour en voir plus.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Compléter le look</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Les pièces qui vont avec</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Aussi admirées</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Par celles et ceux qui ont vu cette pièce</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Vous aimerez aussi</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Ajouter des pièces à comparer</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Ajouter une pièce</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>De votre liste d’envies et de vos dernières visites</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Enregistrez ou regardez des pièces, puis ajoutez-les ici.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Comparer avec %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Tailles</translation>
    </message>
    <message>
        <source>Composition</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Composition</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Retirer de la comparaison</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Non disponible dans votre pays.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>non précisé</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Tailles&#xa0;: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Revenir au début</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Ce que portent les autres</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Faire un tour</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Abonnements</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>L’actualité de vos créateurs</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Voir les nouveautés</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Dressing</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Que porter aujourd’hui&#x202f;?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Ouvrir le dressing</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Vos commandes et alertes</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Votre programme de fidélité</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Voir les avantages</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Où est mon colis&#x202f;?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Commande %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Voir la commande</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Baisses de prix</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Vos pièces coûtent moins cher</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Gardez vos coups de cœur</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln pièce enregistrée</numerusform>
            <numerusform>%Ln pièces enregistrées</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Voir la liste d’envies</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Supprimer votre compte&#x202f;?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Votre profil, vos alertes, vos avantages fidélité et la liste de vos commandes seront définitivement supprimés. Les commandes en route arriveront quand même. Cette action est irréversible.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Saisissez votre adresse e-mail pour confirmer</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Supprimer le compte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Collections</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Collections</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Effacer tous les filtres</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Chercher&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Rien sous ce nom</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>En voir moins</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Tout voir (%Ln)</numerusform>
            <numerusform>Tout voir (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Voir les pièces</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Voir %Ln pièce</numerusform>
            <numerusform>Voir %Ln pièces</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Fermer les filtres</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln choisie, %L1 au plus à comparer</numerusform>
            <numerusform>%Ln choisies, %L1 au plus à comparer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln choisie</numerusform>
            <numerusform>%Ln choisies</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Choisissez de deux à quatre pièces</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Les plus récentes</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Prix croissant</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Prix décroissant</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Vous avez tout vu (%Ln pièce)</numerusform>
            <numerusform>Vous avez tout vu (%Ln pièces)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Collection&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Choisir une taille</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Recommandée pour vous&#xa0;: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Dans votre panier</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Laisser de côté</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 sur %Ln pièce</numerusform>
            <numerusform>%L1 sur %Ln pièces</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>À la place de&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Rien de semblable pour le moment.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Le choix de Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Votre look</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Choisissez les tailles, remplacez ce qui vous plaît moins, laissez de côté ce que vous avez déjà.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>po</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Vos mensurations</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira en déduit vos tailles. Elles rejoignent votre conversation, et une copie reste sur cet ordinateur jusqu’à votre déconnexion.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Métrique</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Impérial</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Stature (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>pi</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Poids (%1)</translation>
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
        <translation>Poitrine (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Tour de taille (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Hanches (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Laissez vide ce que vous ne connaissez pas.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Coupe préférée</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Envoyer à Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Supprimer de cet ordinateur</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Créer un look autour</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Choisir une taille et ajouter au panier</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Écrire à %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look avec %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Mes pièces · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Un look avec mes pièces</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Météo</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Voir le look&#xa0;: %Ln pièce, à votre taille</numerusform>
            <numerusform>Voir le look&#xa0;: %Ln pièces, toutes à votre taille</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Nouveau sujet</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Sujets…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Un look avec mes pièces…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Mes mensurations…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Météo…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Afficher à côté de la page</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Suggestions</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Envoyer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Conversation avec %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Nom du sujet</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Supprimer «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Sujets</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Vous</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Saisir mes mensurations</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 part de ces pièces et n’en ajoute que là où il en manque.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Aucune pièce à associer pour l’instant</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Les pièces de votre panier et de votre liste d’envies s’affichent ici.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln choisie, c’est le maximum</numerusform>
            <numerusform>%Ln choisies, c’est le maximum</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Dans votre panier</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Dans votre liste d’envies</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Où êtes-vous&#x202f;? Le look s’accordera à la journée.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Un look selon la météo</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Utiliser ma position</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Pour quelle occasion vous habillez-vous&#x202f;?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Dites à %1 l’occasion, une pièce que vous aimez ou un budget&#xa0;: elle compose le look.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Connectez-vous pour voir ce qui concerne vos commandes et vos alertes.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Service client</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Connectez-vous pour voir vos notifications</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Rien de nouveau</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Commandes en route, retours en stock et baisses de prix s’annoncent ici.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Ce qui concerne vos commandes et les pièces que vous suivez s’affichera ici.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Non lue</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Tout marquer comme lu</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Réglages des notifications</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Livraison prévue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Date de commande&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Colis</numerusform>
            <numerusform>Colis</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Pièces</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Retours et remboursements</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Cette commande n’est pas ici</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Votre nouvelle commande s’affichera ici dans quelques minutes.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Elle appartient peut-être à un autre compte.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Connectez-vous pour voir cette commande</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Un colis peut être suivi par son numéro, sans compte.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Quantité&#xa0;: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masquée</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Réafficher la commande</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Masquer la commande</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Quelles commandes</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>En route</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Livraison effectuée</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Toutes vos commandes sont masquées</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Rien en route</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Rien de livré pour l’instant</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Aucun retour</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Certaines sont masquées.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Voir les commandes masquées</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Toutes les commandes</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Votre commande arrive sur cette page</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Aucune commande pour l’instant</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Vos commandes s’affichent ici, avec leur trajet jusqu’à vous.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Connectez-vous pour voir vos commandes</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Où elles sont, ce qu’elles contiennent et comment faire un retour.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>N’apparaît plus dans vos commandes sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Étape %L1 sur %L2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Récapitulatif</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Adresse de livraison</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Faire un retour</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Colis %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Ce numéro est encore inconnu</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Un nouveau colis peut mettre une journée à être connu du transporteur.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Ouvrir la page du transporteur</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Le transporteur n’en a encore rien dit.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Le parcours du colis</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Momentanément indisponible</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Cette fonction est en pause. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Cette pièce n’est pas disponible</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Elle est peut-être définitivement épuisée ou n’est pas vendue ici (%1).</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Nous vous écrirons quand le prix baissera</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Me signaler une baisse de prix</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln pièce coûte moins cher qu’à votre visite</numerusform>
            <numerusform>%Ln pièces coûtent moins cher qu’à votre visite</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Rien à surveiller pour l’instant</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Aucune baisse de prix en ce moment</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Enregistrez ou regardez une pièce&#xa0;: vous verrez ici quand son prix baisse.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Vos pièces enregistrées et vues sont au même prix qu’à votre visite, ou ont été vues dans une autre devise.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Vente finale</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Photo %L1 sur %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, photo %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Tout voir</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Pas pour moi</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Après %Ln jour&#xa0;: %1</numerusform>
            <numerusform>Après %Ln jours&#xa0;: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Réponse de la boutique&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Plus d’avis</translation>
    </message>
    <message>
        <source>Description</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Description</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Points forts</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Questions et réponses</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Anniversaire</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Choisir une date</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Votre adresse de connexion</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Annuler les modifications</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Avec nous depuis %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Newsletters</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Par e-mail</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Nouveautés et offres, à %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Par SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Indiquez d’abord votre téléphone ci-dessus</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Connectez-vous pour voir votre profil</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Votre nom, votre numéro de téléphone et ce que nous pouvons vous envoyer.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Découvrir</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Faites un tour, et vous trouverez ici ce qui va avec.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Vus récemment</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Historique vide pour l’instant</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Les pièces que vous regardez se retrouvent ici, pour y revenir facilement.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Connectez-vous, et nous vous écrirons dès son retour.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>L’e-mail partira à %1. Cliquez à nouveau si vous n’en voulez plus.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>L’e-mail partira à %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Agrandir la photo %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln résultat pour «&#xa0;%1&#xa0;»</numerusform>
            <numerusform>%Ln résultats pour «&#xa0;%1&#xa0;»</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Que cherchez-vous&#x202f;?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Aucun résultat pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Vérifiez l’orthographe, essayez un mot plus général ou parcourez les nouveautés.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Rien ne correspond à ces filtres</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Retirez un ou deux filtres pour voir plus de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Se déconnecter&#x202f;?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Votre panier et votre liste d’envies restent sur cet ordinateur. Vous retrouverez vos commandes et vos avantages fidélité en vous reconnectant.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Tableau des tailles</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Unité des tailles</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Trier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Outils</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Aucun outil pour le moment.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Numéro de colis ou de commande</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Il figure dans l’e-mail qui vous a annoncé l’expédition.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Nous ne connaissons pas ce numéro. Vérifiez-le ou réessayez demain&#xa0;: un nouveau colis peut mettre une journée à être connu.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Suivre</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Cette page n’est pas disponible</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Elle a peut-être été déplacée ou viendra avec une autre version.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Cliquez sur le cœur d’une pièce&#xa0;: elle vous attendra ici. Nous surveillons aussi son prix.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Votre compte&#xa0;: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Recherche de votre compte…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Aucun compte connecté</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Commandes, alertes et fidélité nécessitent un compte. Regarder et acheter, non.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Suit le bureau, du clair au sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Cadre de fenêtre du bureau</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Une barre de titre au-dessus des onglets, comme les autres fenêtres</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Aller</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Ce qui se dit</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Dites ce que vous cherchez, ou pour quelle occasion.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Annuler l’appel</translation>
    </message>
    <message>
        <source>Chat</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Continuer dans le chat, pour écrire aussi</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Appel avec %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Durée de l’appel&#xa0;: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Afficher dans le chat</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Fermer et continuer dans le chat</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Raccrocher et fermer</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Image seule</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Afficher l’appel avec %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Appel avec %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Agrandir en pleine page</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Suivez-la à tout moment dans Commandes.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Recharger cette page</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Paiement sécurisé sur Shopify  ·  Votre panier reste tel quel</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Un lien de cette page mène hors du paiement, vers %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Ouvrir dans le navigateur</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Le paiement ne peut pas s’afficher ici</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Continuer dans le navigateur</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET n’est pas configuré</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Exécutez scripts/sync-secrets.sh dans le dossier du projet, puis recompilez.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Pays et devise</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Langue de la boutique</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Ouvrir les pièces à côté de la grille</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Dans une fenêtre large, la pièce s’affiche à côté de la liste où vous l’avez trouvée</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Mesures en</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Centimètres et kilos</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Pouces et livres</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Page sans titre</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Mettre le diaporama en pause</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Lancer le diaporama</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Impossible de charger cette photo</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Pays et langue&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Pays et langue</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Rechercher une langue</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Rechercher un pays ou une devise</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Langues</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Aucune langue ne correspond à «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Aucun pays ne correspond à «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Dans la fenêtre</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Une bannière en haut, pendant quelques secondes.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Sur le bureau</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Là où votre bureau affiche les notifications, même sans fenêtre ouverte.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Avec un son</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Compteur sur l’icône de l’application</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Combien il vous en reste à lire.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Afficher un exemple</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>À quel sujet</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>N’apparaîtra plus dans vos recommandations sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Panneau latéral</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Ouvrir dans un nouvel onglet</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Fermer le panneau latéral</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Largeur du panneau latéral</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Aider la boutique à choisir quoi montrer</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Lui indique quelles pages sont ouvertes, quelles pièces sont vues, mises au panier et achetées, et quand l’application s’est arrêtée inopinément, sans votre nom. Si l’option est désactivée, seul l’essentiel est envoyé.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Dans tous les cas</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>L’essentiel, c’est ce que vous demandez</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Les pages que vous ouvrez, vos recherches, votre panier et vos commandes doivent parvenir à la boutique.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Ce que vous gardez reste sur cet ordinateur</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Votre liste d’envies, ce que vous avez vu et cherché, jusqu’à ce que vous l’effaciez.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Votre connexion est dans le trousseau</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>À défaut, dans un fichier lisible par vous uniquement. Elle expire après 60 jours, et dès que vous vous déconnectez.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Capture d’écran enregistrée</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Impossible d’enregistrer la capture d’écran</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Vérifiez qu’il reste de la place dans votre dossier Images.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Afficher le dossier</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Rechercher, ou coller un lien</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Rechercher par image…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Rubriques</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Continuer avec %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 s’ouvre dans votre navigateur. Identifiez-vous là-bas, et votre session s’ouvre ici.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Copier l’adresse</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Pour un navigateur qui ne s’est pas ouvert tout seul</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Il ne s’est rien passé ici&#x202f;?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Collez le lien final de votre navigateur</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Il commence par «&#xa0;wrenfieldstore://&#xa0;». Certains navigateurs l’affichent dans la barre d’adresse.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Terminer la connexion</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Créez votre compte</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Connectez-vous à votre compte</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Modes de connexion</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Code par e-mail</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Nous avons envoyé un code à %1. Il peut mettre une minute à arriver.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Nous vous envoyons d’abord un code par e-mail, pour nous assurer que l’adresse est la vôtre.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Nous vous envoyons un code de connexion par e-mail. Pas besoin de mot de passe.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Code de vérification</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Renvoyer dans %L1&#xa0;s</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Renvoyer</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Renvoyer le code</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Mot de passe (6 caractères ou plus)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Nom (facultatif)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Mot de passe oublié&#x202f;? Connectez-vous avec un code par e-mail</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>M’envoyer un code</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>ou continuer avec</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micro</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Tester</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Arrêter l’écoute du micro</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Tester le micro</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Il est utilisé pour l’appel.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Dites quelque chose&#xa0;: la barre suit votre voix. Rien ne quitte cet ordinateur.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Montre le volume de votre voix. Rien ne quitte cet ordinateur.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Haut-parleur</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1 coupe le micro où que vous soyez, le temps d’un appel.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>M coupe le micro dans la fenêtre d’un appel.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Rechercher «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récent</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Vus et enregistrés</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Aucune suggestion. Entrée lance la recherche dans toutes les pièces.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>pour choisir</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>pour fermer</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Retirer «&#xa0;%1&#xa0;» des recherches récentes</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Photo&#xa0;: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>S’ouvre dans le navigateur</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Écrire un message</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Joindre une photo ou un PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Photos et PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Déposez ici une photo ou un PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Comment pouvons-nous vous aider&#x202f;?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Une question sur une commande, un retour ou votre taille&#x202f;? Les photos aident aussi.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Où est ma commande&#x202f;?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Je voudrais faire un retour</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Quelle taille prendre&#x202f;?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Fermer %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Nouvel onglet à droite</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Désépingler l’onglet</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Épingler l’onglet</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Déplacer l’onglet vers une nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Rouvrir l’onglet fermé</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Fermer l’onglet</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Fermer les autres onglets</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Déployer la barre latérale</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Réduire la barre latérale</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Nouvel onglet</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Menu</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Retiré de&#xa0;: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Dernière vérification&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Pas encore vérifié</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Cette copie de LOOMSTREET ne peut pas se mettre à jour elle-même.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET cherche de lui-même les nouvelles versions.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Pour l’instant, LOOMSTREET ne cherche pas de lui-même les nouvelles versions.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Les nouvelles versions viennent de là où vous l’avez obtenu. Vous pouvez quand même vérifier ici.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Au démarrage et toutes les six heures. Ce qui est trouvé se télécharge en arrière-plan et s’installe quand vous quittez&#x202f;; si c’est impossible, nous vous le signalons.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>La boutique l’a mis en pause. Vous pouvez quand même vérifier ici.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Nouveautés de la version</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Connexion sécurisée à %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>La connexion n’est pas sécurisée</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Votre compte a été supprimé.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Votre session s’est fermée avant la suppression de votre compte. Reconnectez-vous pour le supprimer.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Livraison</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Offerte</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Taxes</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln colis</numerusform>
            <numerusform>%Ln colis</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Confirmée</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Emballée</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulée</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>En attente du transporteur</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>En cours de livraison</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Problème de livraison</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Retour demandé</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Retour accepté</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Remboursé</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Retour refusé</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 et %Ln autre</numerusform>
            <numerusform>%1 et %Ln autres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Utilisez au maximum %Ln caractère.</numerusform>
            <numerusform>Utilisez au maximum %Ln caractères.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Saisissez un numéro de téléphone, par exemple %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Saisissez une date, par exemple %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Saisissez une date passée.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Une de vos saisies n’a pas été acceptée. Vérifiez-la et réessayez.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Saisissez une adresse e-mail valide.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Ce code est erroné ou a expiré. Demandez-en un nouveau.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Trop de tentatives. Attendez une minute et réessayez.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Cet e-mail et ce mot de passe ne correspondent pas. Réessayez ou connectez-vous avec un code par e-mail.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Ce mode de connexion n’est pas encore disponible.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Ce compte n’a pas d’adresse e-mail que nous puissions utiliser. Essayez un autre mode.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>La connexion a été annulée.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>La connexion a échoué. Réessayez.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Saisissez les six chiffres du code.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Choisissez un mot de passe de 6 caractères ou plus.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Saisissez votre mot de passe. Il compte 6 caractères ou plus.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Ce n’est pas le lien final de votre connexion. Il commence par «&#xa0;wrenfieldstore://&#xa0;».</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Centre d’aide LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Épingler ou désépingler l’onglet</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Reculer l’onglet</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Avancer l’onglet</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Ouvrir le produit du panneau latéral en pleine page</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Ouvrir le produit du panneau latéral dans un nouvel onglet</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Faire une capture d’écran</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Aller à l’accueil de la rubrique</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Onglet suivant</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Onglet précédent</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>À la une</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Les plus récentes</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Prix croissant</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Prix décroissant</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Meilleures ventes</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd’hui</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Femme</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Homme</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Luxe</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Sacs</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Accessoires</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>À partir de %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Jusqu’à %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Vente finale</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Plus qu’un exemplaire</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Plus que %Ln exemplaire</numerusform>
            <numerusform>Plus que %Ln exemplaires</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Pertinence</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Cette pièce ne peut pas être retournée</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Vérifiez taille et couleur avant de commander</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Réalisée pour vous</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Retour uniquement en cas de défaut à l’arrivée</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Fabriquée sur commande, comptez un peu plus de temps</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Sous 30 jours, non portée, avec tout ce qui l’accompagnait</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Gardez la boîte, le pochon et les papiers</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Sous 30 jours, semelles intactes, dans leur boîte</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Essayez-les d’abord à l’intérieur</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Sous 30 jours, non portée, avec les étiquettes</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Choisissez d’abord&#xa0;: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln article dans votre panier</numerusform>
            <numerusform>%Ln articles dans votre panier</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Impossible d’appliquer ce code. Réessayez.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>«&#xa0;%1&#xa0;» ne s’applique pas aux articles de votre panier.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>La livraison OFFERTE dans le monde entier est à vous</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Plus que %1 pour la livraison OFFERTE dans le monde entier</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Commande passée. Elle s’affichera dans Commandes d’ici quelques minutes.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Commande %1 passée. Elle s’affichera dans Commandes d’ici quelques minutes.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln pièce  ·  confirmation envoyée par e-mail</numerusform>
            <numerusform>%Ln pièces  ·  confirmation envoyée par e-mail</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>La page a mis trop de temps à se charger.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>La page mène hors du paiement.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>La page a cessé de fonctionner.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Impossible d’ouvrir le paiement. Réessayez.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>%1 de moins</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>le travail</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>un tête-à-tête</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>les fêtes</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>les mariages</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>les vacances</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>voyager</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>tous les jours</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>le week-end</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>les cours</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>les entretiens</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>la remise des diplômes</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>les festivals</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>la plage</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>sortir le soir</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>le brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>le sport</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>les grandes occasions</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>D’après ce que vous aimez</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Nouveau cette semaine</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Nouveau cette semaine</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Choisi avec soin</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Nouveau cette semaine · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>D’après ce que vous aimez</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Apprécié par des profils proches</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>D’après vos dernières visites</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Tendance en ce moment</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Pour votre recherche&#xa0;: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Vous aimez le style %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Pour %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Sélection style %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>girly</translation>
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
        <translation>élégant</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>minimaliste</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>romantique</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>streetwear</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>gothique</translation>
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
        <translation>français</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>edgy</translation>
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
        <translation>décontracté</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>bohème</translation>
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
        <translation>classique</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>sportif</translation>
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
        <translation>coréen</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>japonais</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>néo-chinois</translation>
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
        <translation>luxe discret</translation>
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
        <translation>mignon</translation>
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
        <translation>féminin</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>androgyne</translation>
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
        <translation>habillé</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>glamour</translation>
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
        <translation>utilitaire</translation>
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
        <translation>croisière</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Promos</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Messagerie</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Trop de tentatives. Patientez un instant et réessayez.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Votre session a expiré. Reconnectez-vous.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Saisissez votre adresse e-mail.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Certaines informations semblent incorrectes. Vérifiez-les et réessayez.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET rencontre un problème. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Cela n’a pas fonctionné. Réessayez.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Réponse inattendue. Réessayez.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Impossible de joindre LOOMSTREET. Réessayez.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>La configuration de l’application est introuvable.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>La demande a pris trop de temps. Réessayez.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>%Ln autre notification vous attend dans votre messagerie.</numerusform>
            <numerusform>%Ln autres notifications vous attendent dans votre messagerie.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Alertes système</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Actualités du compte et du service</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Suivi des commandes</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Commande confirmée, expédiée et livrée</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Remboursements et retours</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Remboursements effectués et suivi des retours</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Réponses du service client</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Quand le service client vous répond</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Les pièces que vous attendiez sont de nouveau disponibles</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Baisse de prix de vos pièces enregistrées ou vues</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Activité sur Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>J’aime, commentaires, nouveaux abonnés et messages</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Changements de niveau, points et nouveaux coupons</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Promotions et événements</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Promos, nouveaux drops et événements de la boutique</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Pièce jointe envoyée</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Commande passée</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Votre commande est confirmée. Elle s’affichera dans Commandes d’ici quelques minutes.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>La commande %1 est confirmée. Elle s’affichera dans Commandes d’ici quelques minutes.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET n’a pas pu se mettre à jour</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Cliquez sur Mettre à jour en haut de la fenêtre pour installer la nouvelle version depuis l’image disque.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Aperçu de notification</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Le suivi de vos commandes et les réponses du service client s’afficheront ici.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Dressing</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Tout ce que vous possédez, au même endroit</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Studio de tenues</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Associez des pièces et voyez l’ensemble</translation>
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
        <translation>Les tenues que vous avez gardées</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Idées de tenues</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>De nouvelles façons de porter votre dressing</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Conseil taille</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Vos mensurations et la taille qui vous va</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Rechercher par image</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Trouver une pièce à partir d’une photo</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Jusqu’à quatre pièces côte à côte</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Vous êtes à jour</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Téléchargement de LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Vérification du téléchargement…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Installation de LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Impossible de rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Impossible de télécharger la mise à jour</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Prêt pour l’installation</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Installer la mise à jour</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>La version %1 est prête à être installée</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 est la version la plus récente.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET se ferme et la nouvelle version prend sa place.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Téléchargée. Relancez pour terminer, sinon elle s’installera quand vous quitterez.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Dans la fenêtre qui vient de s’ouvrir, faites glisser LOOMSTREET sur Applications et choisissez Remplacer. Puis rouvrez LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET n’a pas pu se remplacer sur cet ordinateur. Installez plutôt la nouvelle version depuis l’image disque. Cela prend quelques secondes.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Votre version n’est plus prise en charge.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>La mise à jour est téléchargée. Relancez LOOMSTREET pour terminer, sinon elle s’installera quand vous quitterez.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Impossible de rechercher des mises à jour. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Le téléchargement a échoué (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Le téléchargement est incomplet ou a été modifié en route. Réessayez.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Impossible de lire le fichier téléchargé.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Le téléchargement n’est pas signé par LOOMSTREET, il n’a donc pas été ouvert.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Télécharger et installer</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Relancer pour mettre à jour</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Ouvrir l’image disque</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Vous semblez être hors ligne.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira a mis trop de temps à répondre.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Vous envoyez des messages trop vite. Patientez un instant.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Ce message n’a pas pu être envoyé tel quel.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET rencontre un problème.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Impossible de joindre LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Tailles à choisir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Épuisé entre-temps et non ajouté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Impossible d’ouvrir le paiement. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Cette stature ou ce poids semble incorrect. Vérifiez les chiffres et les unités.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Une de ces mesures semble incorrecte. Vérifiez le chiffre ou laissez vide.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Ample</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Ajustée</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Classique</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Comment porter cette pièce&#xa0;: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Ce message n’a pas été confirmé. Vous pouvez réessayer.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>La conversation est à jour</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira répond</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira répond. Vous pourrez envoyer ceci dans un instant.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Les sujets sont enregistrés sur cet ordinateur. Mira garde la mémoire de vos conversations.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Aidez-moi à trouver une pièce</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Un look avec mon dressing</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Que porter ce soir</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1&#xa0;°C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET n’a pas accès à votre position. Saisissez plutôt votre ville.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Votre position est introuvable. Saisissez plutôt votre ville.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Cette ville est inconnue. Essayez une plus grande à proximité.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira ne peut pas décrocher. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira est déjà en communication. Réessayez dans une minute.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Petite coupure sur la ligne. Vous pouvez répéter&#x202f;?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>La ligne a été coupée. Rappelez pour continuer.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>L’accès au micro est désactivé. Activez-le dans Réglages Système › Confidentialité et sécurité › Microphone, puis rappelez.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Impossible de démarrer le micro. Vérifiez qu’il est branché, puis rappelez.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Couper le micro pendant un appel</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Ajouté à votre panier</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Ajouté à votre panier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Ajout impossible. Essayez depuis la page produit.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>On y va…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Ouverture&#xa0;: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Par défaut du système</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Manteaux et vestes</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Hauts</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Robes</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Chaussures</translation>
    </message>
    <message>
        <source>Extras</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Extras</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Doux</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Ensoleillé</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Partiellement nuageux</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Couvert</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Brumeux</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Bruine</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Pluvieux</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Neigeux</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Averses</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Orageux</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Ce fichier n’existe plus.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Impossible de lire ce fichier.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Ce fichier est vide.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Ce fichier dépasse 10&#xa0;Mo. Choisissez-en un plus petit.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Seuls des photos et des PDF peuvent être envoyés.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Ce message n’est peut-être pas arrivé.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Masquées</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>En route</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Livrées</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Écrire au service client</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Conversation avec le service client</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
</context>
</TS>
