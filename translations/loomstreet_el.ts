<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>Είσαι εδώ</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>Άνοιγμα πλήρους σελίδας</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Αποστολή…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>Λιγότερα</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Προβολή όλων</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter για αποστολή, Shift+Enter για νέα γραμμή</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Αποστολή</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Δοκίμασε ξανά</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Αφαίρεση</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Αφαίρεση: %1</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Παλαιότερα</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>Πίσω στο έτος</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Αργότερα</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Ανοιχτό</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Κλειστό</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>Στα πιο πρόσφατα</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln νέο μήνυμα</numerusform>
            <numerusform>%Ln νέα μηνύματα</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>Φαίνεται ότι δεν υπάρχει σύνδεση. Έλεγξέ τη και δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>Απόκρυψη κωδικού</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Εμφάνιση κωδικού</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, αρχικά %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>Εξαντλήθηκε</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Σε εξέλιξη</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>Αφαίρεση από τα αγαπημένα</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>Προσθήκη στα αγαπημένα</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Αναζήτηση</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Προηγούμενο</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Επόμενο</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, εξαντλήθηκε</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, προτείνεται για σένα</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>Βαθμολογία %L1 στα 5, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>Βαθμολογία %L1 στα 5</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>Λιγότερα</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>Περισσότερα</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Αναίρεση</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>Ο λογαριασμός σου</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Αποσύνδεση</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>Η γκαρνταρόμπα σου, πάντα στη μνήμη μας</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>Εδώ βλέπεις και αγοράζεις τα πάντα χωρίς λογαριασμό. Με λογαριασμό, το κατάστημα ξέρει πού είναι τα δέματά σου και τι περιμένεις.</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Σύνδεση</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>Δημιουργία λογαριασμού</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>Οι παραγγελίες σε ένα μέρος</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>Πού είναι κάθε δέμα, και επιστροφές χωρίς να ψάχνεις απόδειξη</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>Ένα μήνυμα όταν έχει σημασία</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>Το μέγεθός σου επέστρεψε ή η τιμή έπεσε</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>Πρόγραμμα μελών και κουπόνια</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>Πόντοι, επίπεδα και όσα προσφέρουν</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>Ένα ταμείο που σε ξέρει</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>Η διεύθυνσή σου είναι ήδη εκεί</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>Εξυπηρέτηση πελατών</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>Παραγγελίες, επιστροφές και μεγέθη</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>Παραγγελίες</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>Στον δρόμο και παλαιότερες αγορές</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>Εντοπισμός δέματος</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>Με τον αριθμό του ή της παραγγελίας</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>Επιστροφές</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>Στείλε κάτι πίσω</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>Για σένα</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>Αγαπημένα</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>Δεν έχεις αποθηκεύσει κάτι ακόμα</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln κομμάτι</numerusform>
            <numerusform>%Ln κομμάτια</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Alerts</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>Ξανά διαθέσιμα και χαμηλότερες τιμές</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>Πρόγραμμα μελών</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>Το επίπεδο και οι πόντοι σου</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>Κουπόνια</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>Τα χρησιμοποιείς στο ταμείο</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Λογαριασμός</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>Χωρίς λογαριασμό</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Προφίλ</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>Όνομα, γενέθλια και newsletter</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>Απόρρητο</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>Τι μαθαίνει το κατάστημα για σένα</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>Μένουν σε αυτόν τον υπολογιστή</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>Διαγραφή λογαριασμού…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>Η κλειδοθήκη σου δεν ανταποκρίνεται</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>Φυλάει με ασφάλεια τη σύνδεσή σου και χωρίς αυτή δεν γίνεται σύνδεση. Ξεκλείδωσέ τη και δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>Ξανά διαθέσιμο</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>Πτώση τιμής</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>Επέστρεψε στο απόθεμα</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>Τώρα φθηνότερα</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>%1 όταν το ζήτησες</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>Διακοπή του alert</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>
            <numerusform>%Ln alert</numerusform>
            <numerusform>%Ln alerts</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>Σου στέλνουμε email στο %1 όταν ένα κομμάτι επιστρέψει ή πέσει η τιμή του.</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>Κανένα alert ακόμα</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>Σε κομμάτι που εξαντλήθηκε στο μέγεθός σου, πάτησε «Ειδοποίησέ με όταν επιστρέψει». Σε όποιο άλλο, «Ειδοποίησέ με αν πέσει η τιμή».</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>Νέες αφίξεις</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>Συνδέσου για να δεις τα alerts σου</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>Σε ενημερώνουμε όταν ένα κομμάτι επιστρέψει στο μέγεθός σου ή κοστίζει λιγότερο.</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>Δεν θα σου στείλουμε email γι’ αυτό.</numerusform>
            <numerusform>Δεν θα σου στείλουμε email γι’ αυτά.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln κομμάτι</numerusform>
            <numerusform>%1, %Ln κομμάτια</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>Σχεδιαστές</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln σχεδιαστής</numerusform>
            <numerusform>%Ln σχεδιαστές</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>Βρες σχεδιαστή</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Καθαρισμός</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Γράμματα</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>Άλλοι σχεδιαστές</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>Σχεδιαστές με %1</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>Κανένας σχεδιαστής για «%1»</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>Έλεγξε την ορθογραφία ή δες τους όλους.</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>Όλοι οι σχεδιαστές</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Δεν υπάρχει κάτι εδώ ακόμα</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>Νέα κομμάτια έρχονται κάθε εβδομάδα.</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>Εξερεύνηση</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln αξιολόγηση</numerusform>
            <numerusform>%Ln αξιολογήσεις</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln πώληση</numerusform>
            <numerusform>%Ln πωλήσεις</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>Προπώληση</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>Η συχνότερη επιλογή: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>Πώς να το φορέσω;</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Σύγκριση</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>Με κομμάτια που αποθήκευσες ή είδες</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>ΔΩΡΕΑΝ αποστολή σε όλο τον κόσμο</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>Για καλάθι από %1 και πάνω</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>Καλό να ξέρεις</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>Οι δασμοί περιλαμβάνονται</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>Τα μεταφορικά υπολογίζονται στο ταμείο</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>Θα σου στείλουμε email όταν επιστρέψει</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>Ειδοποίησέ με όταν επιστρέψει</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Προστέθηκε</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>Προσθήκη στο καλάθι</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>Πάτησε για ακύρωση</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>Άνοιγμα ταμείου…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>Αγορά τώρα</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>Κλήση με %1</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>Άνοιγμα σε παράθυρο</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>Τερματισμός κλήσης</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>Εμφάνιση κλήσης</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>Κλήση: %1</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>Νέα κλήση</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>Το μικρόφωνο είναι ανοιχτό</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>Το μικρόφωνο είναι σε σίγαση</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>Κλήση…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>Σκέφτεται</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>Μιλάει</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>Σε σίγαση</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Ακούει</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>Η κλήση έληξε</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Άρση σίγασης</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Σίγαση</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>Κωδικός έκπτωσης</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Εφαρμογή</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>Το καλάθι δεν φορτώθηκε</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>Τα προϊόντα σου είναι ασφαλή. Έλεγξε τη σύνδεση και δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>Το καλάθι σου είναι άδειο</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>Ό,τι προσθέτεις θα εμφανίζεται εδώ.</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>Συνέχεια αγορών</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>Αφαιρέθηκε: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>Το προηγούμενο καλάθι σου έληξε. Είχε %Ln προϊόν.</numerusform>
            <numerusform>Το προηγούμενο καλάθι σου έληξε. Είχε %Ln προϊόντα.</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Επαναφορά</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Ποσότητα: %1</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>Αφαίρεση από το καλάθι</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Απόκρυψη</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>Καλάθι</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>Καλάθι</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>Εμφάνιση στο πλάι</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>Μερικό σύνολο</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Έκπτωση</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Σύνολο</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>Με δασμούς · Τα μεταφορικά υπολογίζονται στο ταμείο</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Ταμείο</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>Ολοκλήρωσε την πληρωμή στο παράθυρο του ταμείου. Το καλάθι σου μένει όπως είναι.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Μη διαθέσιμο</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>Συλλογή</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>%Ln νέο τις τελευταίες 30 ημέρες</numerusform>
            <numerusform>%Ln νέα τις τελευταίες 30 ημέρες</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>Αυτή η συλλογή δεν είναι διαθέσιμη</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>Ίσως άλλαξε όνομα ή δεν πωλείται στη χώρα: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>Κανένα προϊόν με αυτά τα φίλτρα</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>Αφαίρεσε ένα φίλτρο για να δεις περισσότερα.</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>Ολοκλήρωσε το look</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>Κομμάτια που του ταιριάζουν</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>Άρεσαν επίσης</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>Σε όσους είδαν αυτό το κομμάτι</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>Μπορεί να σου αρέσουν</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>Πρόσθεσε κομμάτια για σύγκριση</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>Προσθήκη κομματιού</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>Από τα αγαπημένα σου και όσα είδες</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>Αποθήκευσε ή δες κομμάτια και πρόσθεσέ τα εδώ.</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Σύγκριση με: %1</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Μεγέθη</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>Σύνθεση</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>Αφαίρεση από τη σύγκριση</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>Μη διαθέσιμο στη χώρα σου.</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>δεν αναφέρεται</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>Μεγέθη: %1</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>Πίσω στο πρώτο</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>Τι φορούν οι άλλοι</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Ρίξε μια ματιά</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>Ακολουθείς</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>Νέα από τους σχεδιαστές σου</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>Δες τι νέο υπάρχει</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>Ντουλάπα</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>Τι να φορέσω σήμερα;</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>Άνοιγμα ντουλάπας</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>Οι παραγγελίες και τα alerts σου</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>Τα προνόμιά σου</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>Δες τι προσφέρουν</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>Πού είναι το δέμα μου;</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>Παραγγελία %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>Δες την παραγγελία</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>Πτώσεις τιμών</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>Τα κομμάτια σου κοστίζουν λιγότερο τώρα</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>Κράτα όσα αγαπάς</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln αποθηκευμένο κομμάτι</numerusform>
            <numerusform>%Ln αποθηκευμένα κομμάτια</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>Δες τα αγαπημένα</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>Διαγραφή του λογαριασμού σου;</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>Το προφίλ, τα alerts, τα προνόμια μέλους και η λίστα των παραγγελιών σου διαγράφονται οριστικά. Όσες παραγγελίες είναι στον δρόμο θα φτάσουν. Δεν γίνεται αναίρεση.</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>Γράψε το email σου για επιβεβαίωση</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>Διαγραφή λογαριασμού</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>Συλλογές</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Φίλτρα</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>Καθαρισμός όλων των φίλτρων</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>Αναζήτηση: %1</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>Τίποτα με αυτό το όνομα</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>Λιγότερα</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>Όλα (%Ln)</numerusform>
            <numerusform>Όλα (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>Από</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>Έως</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>Δες τα κομμάτια</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>Δες %Ln κομμάτι</numerusform>
            <numerusform>Δες %Ln κομμάτια</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>Κλείσιμο φίλτρων</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln επιλεγμένο, συγκρίνονται %L1</numerusform>
            <numerusform>%Ln επιλεγμένα, συγκρίνονται %L1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln επιλεγμένο</numerusform>
            <numerusform>%Ln επιλεγμένα</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>Διάλεξε δύο έως τέσσερα κομμάτια</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Επιλογή</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Νεότερα πρώτα</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>Τιμή: αύξουσα</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>Τιμή: φθίνουσα</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>Τα είδες όλα (%Ln)</numerusform>
            <numerusform>Τα είδες όλα (%Ln)</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>Συλλογή: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Άνοιγμα: %1</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>Διάλεξε μέγεθος</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Μέγεθος</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>Προτείνεται για σένα: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>Στο καλάθι σου</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Αντικατάσταση</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Παράλειψη</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%L1 από %Ln κομμάτι</numerusform>
            <numerusform>%L1 από %Ln κομμάτια</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>Αντί για: %1</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>Τίποτα παρόμοιο προς το παρόν.</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Η επιλογή της Mira</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>Το look σου</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>Διάλεξε μεγέθη, αντικατάστησε ό,τι σου αρέσει λιγότερο, παράλειψε όσα έχεις ήδη.</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>in</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>Οι διαστάσεις σου</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Η Mira υπολογίζει από αυτές τα μεγέθη σου. Μπαίνουν στη συζήτησή σας και ένα αντίγραφο μένει σε αυτόν τον υπολογιστή μέχρι να αποσυνδεθείς.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Μονάδα</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Μετρικό</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Αγγλοσαξονικό</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>Ύψος (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>ft</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>Βάρος (%1)</translation>
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
        <translation>Στήθος (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>Μέση (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>Γοφοί (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>Άφησέ τα κενά αν δεν τα ξέρεις.</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>Προτιμώμενη εφαρμογή</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Αποστολή στη Mira</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>Διαγραφή από αυτόν τον υπολογιστή</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>Φτιάξε look με αυτό</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>Διάλεξε μέγεθος και πρόσθεσε στο καλάθι</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Μήνυμα προς: %1</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>Look με: %1</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>Τα κομμάτια μου · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>Look με τα κομμάτια μου</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Καιρός</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Περισσότερα</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>Δες το look: %Ln κομμάτι, στο μέγεθός σου</numerusform>
            <numerusform>Δες το look: %Ln κομμάτια, όλα στο μέγεθός σου</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>Νέο θέμα</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>Θέματα…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Ανανέωση</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>Look με τα κομμάτια μου…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>Οι διαστάσεις μου…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>Καιρός…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>Εμφάνιση δίπλα στη σελίδα</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Προτάσεις</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>Αποστολή: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>Συζήτηση με: %1</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Μετονομασία</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Διαγραφή</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>Όνομα θέματος</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>Διαγραφή του «%1»;</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Διατήρηση</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Θέματα</translation>
    </message>
    <message>
        <source>You</source>
        <translation>Εσύ</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>Εισαγωγή των διαστάσεών μου</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>Η %1 ξεκινά από αυτά και προσθέτει κάτι νέο μόνο όπου λείπει.</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>Δεν υπάρχει κάτι για συνδυασμό ακόμα</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>Εδώ εμφανίζονται κομμάτια από το καλάθι και τα αγαπημένα σου.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln επιλεγμένο, το μέγιστο δυνατό</numerusform>
            <numerusform>%Ln επιλεγμένα, το μέγιστο δυνατό</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>Στο καλάθι σου</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>Στα αγαπημένα σου</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>Πού είσαι; Το look θα ταιριάζει με τον καιρό.</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>Look για τον καιρό</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Πόλη</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Ορισμός</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>Χρήση της τοποθεσίας μου</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>Για πού ντύνεσαι;</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>Πες την περίσταση, ένα κομμάτι που αγαπάς ή το μπάτζετ σου, και η %1 φτιάχνει το look.</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>Συνδέσου για να δεις ό,τι αφορά τις παραγγελίες και τα alerts σου.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Εμφάνιση</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Όλες</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Σύστημα</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>Εξυπηρέτηση πελατών</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Ειδοποιήσεις</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>Συνδέσου για να δεις τις ειδοποιήσεις σου</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>Τίποτα νέο</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>Εδώ μαθαίνεις για παραγγελίες στον δρόμο, κομμάτια ξανά διαθέσιμα και χαμηλότερες τιμές.</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>Εδώ θα βρίσκεις ό,τι αφορά τις παραγγελίες σου και τα κομμάτια που παρακολουθείς.</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>Μη αναγνωσμένη</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Σήμανση όλων ως αναγνωσμένων</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>Ρυθμίσεις ειδοποιήσεων</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>Αναμένεται: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Παραγγελία</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>Παραγγέλθηκε: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>Δέμα</numerusform>
            <numerusform>Δέματα</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Κομμάτια</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>Επιστροφές προϊόντων και χρημάτων</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>Αυτή η παραγγελία δεν είναι εδώ</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>Η νέα σου παραγγελία θα φανεί εδώ σε λίγα λεπτά.</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>Ίσως ανήκει σε άλλον λογαριασμό.</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>Συνδέσου για να δεις την παραγγελία</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>Ένα δέμα εντοπίζεται με τον αριθμό του και χωρίς λογαριασμό.</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>Ποσότητα: %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Σε απόκρυψη</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>Επανεμφάνιση παραγγελίας</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>Απόκρυψη παραγγελίας</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>Ποιες παραγγελίες</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>Στον δρόμο</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>Παραδόθηκε</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>Όλες οι παραγγελίες σου είναι κρυμμένες</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>Τίποτα στον δρόμο</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>Καμία παράδοση ακόμα</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>Καμία επιστροφή</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>Κάποιες είναι κρυμμένες.</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>Εμφάνιση κρυμμένων παραγγελιών</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>Όλες οι παραγγελίες</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>Η παραγγελία σου έρχεται σε αυτή τη σελίδα</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>Καμία παραγγελία ακόμα</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>Εδώ βλέπεις ό,τι παραγγέλνεις και πού βρίσκεται στον δρόμο προς εσένα.</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>Συνδέσου για να δεις τις παραγγελίες σου</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>Πού είναι, τι περιέχουν και πώς επιστρέφεις κάτι.</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>Κρύφτηκε από τις παραγγελίες σου σε αυτόν τον υπολογιστή.</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>Βήμα %L1 από %L2: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Σύνοψη</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Διεύθυνση παράδοσης</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>Έναρξη επιστροφής</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>Δέμα %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>Ο αριθμός δεν είναι ακόμα γνωστός</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>Ένα νέο δέμα μπορεί να κάνει μία μέρα να φανεί στον μεταφορέα.</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>Άνοιγμα σελίδας του μεταφορέα</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>Ο μεταφορέας δεν έχει δώσει ακόμα νέα του.</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>Η πορεία του δέματος</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>Προσωρινά μη διαθέσιμο</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>Αυτή η λειτουργία είναι σε παύση. Δοκίμασε ξανά αργότερα.</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Αφαίρεση από τη λίστα</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>Αυτό το κομμάτι δεν είναι διαθέσιμο</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>Ίσως εξαντλήθηκε οριστικά ή δεν πωλείται στη χώρα: %1.</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>Θα σου στείλουμε email όταν κοστίζει λιγότερο</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>Ειδοποίησέ με αν πέσει η τιμή</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln κομμάτι κοστίζει λιγότερο από ό,τι όταν το είδες</numerusform>
            <numerusform>%Ln κομμάτια κοστίζουν λιγότερο από ό,τι όταν τα είδες</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>Τίποτα για παρακολούθηση ακόμα</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>Καμία πτώση τιμής τώρα</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>Αποθήκευσε ή δες ένα κομμάτι, και θα βλέπεις εδώ πότε κοστίζει λιγότερο.</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>Όσα αποθήκευσες και είδες κοστίζουν όσο και τότε ή τα είχες δει σε άλλο νόμισμα.</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>Τελευταία ευκαιρία</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Εικόνες</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>Εικόνα %L1 από %L2</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, εικόνα %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>Δες τα όλα</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>Δεν με ενδιαφέρει</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>Μετά από %Ln ημέρα: %1</numerusform>
            <numerusform>Μετά από %Ln ημέρες: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>Το κατάστημα απάντησε: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>Αξιολογήσεις</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>Περισσότερες αξιολογήσεις</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Περιγραφή</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>Με μια ματιά</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Λεπτομέρειες</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>Ερωτήσεις και απαντήσεις</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Όνομα</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Τηλέφωνο</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>Γενέθλια</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>Επιλογή ημερομηνίας</translation>
    </message>
    <message>
        <source>Email</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Email</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>Η διεύθυνση με την οποία συνδέεσαι</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Χώρα</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Αποθήκευση</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Απόρριψη αλλαγών</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Αποθηκεύτηκε</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>Μαζί μας από: %1</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>Newsletter</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>Με email</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>Νέα κομμάτια και προσφορές, στο %1</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>Με SMS</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>Συμπλήρωσε παραπάνω το τηλέφωνό σου</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>Συνδέσου για να δεις το προφίλ σου</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>Το όνομα, το τηλέφωνό σου και τι μπορούμε να σου στέλνουμε.</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>Ανακάλυψε</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>Κάνε μια μικρή βόλτα, και εδώ θα βρεις ό,τι ταιριάζει.</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>Είδες πρόσφατα</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Καθαρισμός όλων</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>Δεν υπάρχει ιστορικό ακόμα</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>Εδώ μαζεύονται τα κομμάτια που βλέπεις, για να τα ξαναβρίσκεις.</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>Συνδέσου, και θα σου στείλουμε email μόλις επιστρέψει.</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>Το email πηγαίνει στο %1. Πάτησε ξανά αν δεν το θέλεις πια.</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>Το email πηγαίνει στο %1.</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>Μεγέθυνση εικόνας %L1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>%Ln αποτέλεσμα για «%1»</numerusform>
            <numerusform>%Ln αποτελέσματα για «%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>Τι ψάχνεις;</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>Κανένα αποτέλεσμα για «%1»</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>Έλεγξε την ορθογραφία, δοκίμασε μια πιο γενική λέξη ή δες τις νέες αφίξεις.</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>Τίποτα με αυτά τα φίλτρα</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>Αφαίρεσε ένα-δύο φίλτρα για να δεις περισσότερα για «%1»</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>Αποσύνδεση;</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>Το καλάθι και τα αγαπημένα σου μένουν σε αυτόν τον υπολογιστή. Οι παραγγελίες και τα προνόμια μέλους θα είναι ξανά διαθέσιμα όταν συνδεθείς.</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>Πίνακας μεγεθών</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>Μονάδα μεγεθών</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>Ταξινόμηση: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>Εργαλεία</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>Δεν υπάρχουν εργαλεία προς το παρόν.</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>Αριθμός δέματος ή παραγγελίας</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>Θα τον βρεις στο email για την αποστολή.</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>Δεν ξέρουμε αυτόν τον αριθμό. Έλεγξέ τον ή δοκίμασε αύριο: ένα νέο δέμα μπορεί να κάνει μία μέρα να φανεί.</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Εντοπισμός</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>Αυτή η σελίδα δεν είναι διαθέσιμη</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>Ίσως μετακινήθηκε ή έρχεται με άλλη έκδοση.</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>Πάτησε την καρδιά σε ένα κομμάτι και θα σε περιμένει εδώ. Παρακολουθούμε και την τιμή του.</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>Ο λογαριασμός σου: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>Αναζήτηση του λογαριασμού σου…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>Δεν έχει γίνει σύνδεση</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>Οι παραγγελίες, τα alerts και το πρόγραμμα μελών θέλουν λογαριασμό. Η περιήγηση και οι αγορές όχι.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Εμφάνιση</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Χρώματα</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Όπως το σύστημα</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>Ακολουθεί τη φωτεινή ή σκούρα εμφάνιση του συστήματος</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Φωτεινή</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Σκούρα</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>Πλαίσιο παραθύρου του συστήματος</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>Γραμμή τίτλου πάνω από τις καρτέλες, όπως στα άλλα παράθυρα</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Αρχείο</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Προβολή</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Μετάβαση</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Βοήθεια</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>Υπότιτλοι</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>Πες τι ψάχνεις ή για ποια περίσταση.</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>Ακύρωση κλήσης</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Συνομιλία</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>Συνέχεια στη συνομιλία, για να γράφεις κιόλας</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>Κλήση με %1, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>Διάρκεια κλήσης: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>Εμφάνιση στη συνομιλία</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>Σμίκρυνση</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>Κλείσιμο και συνέχεια στη συνομιλία</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>Τερματισμός κλήσης και κλείσιμο</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>Μόνο η εικόνα</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>Μεγέθυνση</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>Εμφάνιση κλήσης με %1</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>Κλήση με %1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>Ανάπτυξη σε πλήρη σελίδα</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>Δες πού βρίσκεται όποτε θέλεις, στις Παραγγελίες.</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>Επαναφόρτωση σελίδας</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Ασφαλές ταμείο στο Shopify  ·  Το καλάθι σου μένει όπως είναι</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>Ένας σύνδεσμος της σελίδας οδηγεί έξω από το ταμείο, προς: %1.</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>Άνοιγμα στον περιηγητή</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>Το ταμείο δεν μπορεί να εμφανιστεί εδώ</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>Συνέχεια στον περιηγητή</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>Το LOOMSTREET δεν έχει ρυθμιστεί</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>Εκτέλεσε το scripts/sync-secrets.sh στον φάκελο του έργου και κάνε ξανά build.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>Ιστορικό</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Γενικά</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>Χώρα και νόμισμα</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>Γλώσσα του καταστήματος</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>Άνοιγμα κομματιών δίπλα στο πλέγμα</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>Στα φαρδιά παράθυρα το κομμάτι ανοίγει δίπλα εκεί που το βρήκες</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>Διαστάσεις σε</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>Εκατοστά και κιλά</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>Ίντσες και λίβρες</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>Σελίδα χωρίς τίτλο</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>Παύση προβολής</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>Αναπαραγωγή προβολής</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Διάστημα</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Σμίκρυνση</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Μεγέθυνση</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>Η εικόνα δεν φορτώθηκε</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>Χώρα και γλώσσα: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>Χώρα και γλώσσα</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Γλώσσα</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Αναζήτηση γλώσσας</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>Αναζήτηση χώρας ή νομίσματος</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Γλώσσες</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Χώρες</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>Καμία γλώσσα για «%1»</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>Καμία χώρα για «%1»</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Άνοιγμα</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>Στο παράθυρο</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>Μια λωρίδα στην κορυφή του, για λίγα δευτερόλεπτα.</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>Στην επιφάνεια εργασίας</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>Εκεί που το σύστημα δείχνει τα μηνύματα των εφαρμογών, ακόμα και χωρίς ανοιχτό παράθυρο.</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>Με ήχο</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>Αριθμός στο εικονίδιο της εφαρμογής</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>Πόσα δεν έχεις διαβάσει ακόμα.</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>Εμφάνιση παραδείγματος</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>Για ποια θέματα</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>Δεν θα προτείνεται πια σε αυτόν τον υπολογιστή.</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>Πλαϊνό πλαίσιο</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>Άνοιγμα σε νέα καρτέλα</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>Κλείσιμο πλαϊνού πλαισίου</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>Πλάτος πλαϊνού πλαισίου</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>Βοήθησε το κατάστημα να διαλέγει τι θα δείχνει</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>Του λέει ποιες σελίδες και κομμάτια βλέπεις, βάζεις στο καλάθι και αγοράζεις, και πότε η εφαρμογή έκλεισε απρόσμενα, χωρίς το όνομά σου. Αν είναι κλειστό, στέλνονται μόνο τα απαραίτητα.</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>Σε κάθε περίπτωση</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>Απαραίτητο είναι ό,τι ζητάς εσύ</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>Οι σελίδες που ανοίγεις, οι αναζητήσεις, το καλάθι και οι παραγγελίες σου πρέπει να φτάνουν στο κατάστημα.</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>Ό,τι κρατάς μένει σε αυτόν τον υπολογιστή</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>Τα αγαπημένα σου, όσα είδες και όσα αναζήτησες, μέχρι να τα καθαρίσεις.</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>Η σύνδεσή σου φυλάσσεται στην κλειδοθήκη</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>Όπου δεν υπάρχει, σε ένα αρχείο που διαβάζεις μόνο εσύ. Λήγει μετά από 60 ημέρες και κάθε φορά που αποσυνδέεσαι.</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>Το στιγμιότυπο αποθηκεύτηκε</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>Το στιγμιότυπο δεν αποθηκεύτηκε</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>Έλεγξε αν υπάρχει χώρος στον φάκελο Εικόνες.</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Εμφάνιση φακέλου</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>Αναζήτησε ή επικόλλησε σύνδεσμο</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>Αναζήτηση με εικόνα…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ήχος</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Ενημερώσεις</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ρυθμίσεις</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Ενότητες</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>Συνέχεια με %1</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>Σύνδεση…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>Στον περιηγητή ανοίγει: %1. Συνδέσου εκεί, και θα συνδεθείς και εδώ.</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Αντιγράφηκε</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>Αντιγραφή διεύθυνσης</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>Για περιηγητή που δεν άνοιξε μόνος του</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>Δεν έγινε τίποτα εδώ;</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>Επικόλλησε τον σύνδεσμο όπου κατέληξε ο περιηγητής</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>Αρχίζει με «wrenfieldstore://». Κάποιοι περιηγητές τον δείχνουν στη γραμμή διευθύνσεων.</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>Ολοκλήρωση σύνδεσης</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>Δημιούργησε τον λογαριασμό σου</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>Συνδέσου στον λογαριασμό σου</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>Τρόποι σύνδεσης</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>Κωδικός με email</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Κωδικός πρόσβασης</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>Στείλαμε έναν κωδικό στο %1. Μπορεί να κάνει ένα λεπτό να φτάσει.</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>Σου στέλνουμε πρώτα έναν κωδικό με email, για να είναι σίγουρο ότι η διεύθυνση είναι δική σου.</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>Σου στέλνουμε με email έναν κωδικό σύνδεσης. Δεν χρειάζεσαι κωδικό πρόσβασης.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Κωδικός επαλήθευσης</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>Ξανά σε %L1 δευτ.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Νέα αποστολή</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>Νέα αποστολή του κωδικού</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>Κωδικός πρόσβασης (τουλάχιστον 6 χαρακτήρες)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>Όνομα (προαιρετικό)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>Ξέχασες τον κωδικό πρόσβασης; Συνδέσου με κωδικό στο email</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>Κωδικός στο email μου</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>ή συνέχισε με</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Μικρόφωνο</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Διακοπή</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>Δοκιμή</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>Διακοπή δοκιμής μικροφώνου</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>Δοκιμή μικροφώνου</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Ένταση</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>Χρησιμοποιείται για την κλήση.</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>Πες κάτι: η μπάρα ακολουθεί τη φωνή σου. Τίποτα δεν φεύγει από αυτόν τον υπολογιστή.</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>Δείχνει πόσο δυνατά μιλάς. Τίποτα δεν φεύγει από αυτόν τον υπολογιστή.</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>Ηχείο</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>%1: σίγαση μικροφώνου από οπουδήποτε, όσο κρατάει η κλήση.</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>Το M βάζει το μικρόφωνο σε σίγαση στο παράθυρο της κλήσης.</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Σύνδεσμος</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>Αναζήτηση για «%1»</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Πρόσφατα</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>Όσα είδες και αποθήκευσες</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>Δεν βρέθηκε κομμάτι. Με Enter ψάχνεις σε όλα.</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>επιλογή</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>κλείσιμο</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>Αφαίρεση «%1» από τις πρόσφατες αναζητήσεις</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>Εικόνα: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>Ανοίγει στον περιηγητή</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>Γράψε ένα μήνυμα</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>Επισύναψη εικόνας ή PDF</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>Εικόνες και PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>Άφησε εδώ μια εικόνα ή ένα PDF</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>Πώς μπορούμε να βοηθήσουμε;</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>Ρώτησε για παραγγελία, επιστροφή ή το μέγεθός σου. Βοηθούν και οι εικόνες.</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>Πού είναι η παραγγελία μου;</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>Θέλω να επιστρέψω κάτι</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>Ποιο μέγεθος να πάρω;</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Φόρτωση</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Κλείσιμο: %1</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>Νέα καρτέλα δεξιά</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>Ξεκαρφίτσωμα καρτέλας</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>Καρφίτσωμα καρτέλας</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>Μεταφορά καρτέλας σε νέο παράθυρο</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Επαναφορά κλειστής καρτέλας</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Κλείσιμο καρτέλας</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>Κλείσιμο άλλων καρτελών</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>Ανάπτυξη πλαϊνής στήλης</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>Σύμπτυξη πλαϊνής στήλης</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Καρτέλες</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Νέα καρτέλα</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Εμπρός</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Μενού</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>Αφαιρέθηκε από: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Ενημέρωση</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>Τελευταίος έλεγχος: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>Δεν έγινε έλεγχος ακόμα</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>Αυτό το αντίγραφο του LOOMSTREET δεν ενημερώνεται μόνο του.</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>Το LOOMSTREET αναζητά μόνο του νέες εκδόσεις.</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>Το LOOMSTREET δεν αναζητά μόνο του νέες εκδόσεις προς το παρόν.</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>Οι νέες εκδόσεις έρχονται από εκεί που πήρες την εφαρμογή. Μπορείς να ελέγξεις και εδώ.</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>Κατά την εκκίνηση και κάθε έξι ώρες. Ό,τι βρει, το κατεβάζει στο παρασκήνιο και το εγκαθιστά στην έξοδο· όπου αυτό δεν γίνεται, σε ενημερώνει.</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>Το κατάστημα το έχει σε παύση. Μπορείς πάντα να ελέγξεις εδώ.</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Έλεγχος για ενημερώσεις…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Έκδοση %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>Τι νέο υπάρχει</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Παράλειψη αυτής της έκδοσης</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Ελαχιστοποίηση</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Επαναφορά</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Μεγιστοποίηση</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Κλείσιμο παραθύρου</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>Ασφαλής σύνδεση με %1</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>Η σύνδεση δεν είναι ασφαλής</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>Ο λογαριασμός σου διαγράφηκε.</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>Έγινε αποσύνδεση πριν διαγραφεί ο λογαριασμός σου. Συνδέσου ξανά για να τον διαγράψεις.</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>Μεταφορικά</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Δωρεάν</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Φόροι</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln δέμα</numerusform>
            <numerusform>%Ln δέματα</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Επιβεβαιώθηκε</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>Συσκευάστηκε</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Ακυρώθηκε</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>Σε εξέλιξη</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>Αναμονή για τον μεταφορέα</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>Βγήκε για παράδοση</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>Πρόβλημα παράδοσης</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>Ζητήθηκε επιστροφή</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>Η επιστροφή εγκρίθηκε</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>Έγινε επιστροφή χρημάτων</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>Η επιστροφή απορρίφθηκε</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 και %Ln ακόμα</numerusform>
            <numerusform>%1 και %Ln ακόμα</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>Έως %Ln χαρακτήρα.</numerusform>
            <numerusform>Έως %Ln χαρακτήρες.</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>Γράψε ένα τηλέφωνο, π.χ. %1.</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>Γράψε μια ημερομηνία, π.χ. %1.</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>Γράψε μια ημερομηνία του παρελθόντος.</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>Κάτι από όσα έγραψες δεν έγινε δεκτό. Έλεγξέ το και δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>Γράψε ένα έγκυρο email.</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>Ο κωδικός είναι λάθος ή έληξε. Ζήτησε νέο.</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>Πάρα πολλές προσπάθειες. Περίμενε ένα λεπτό και δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>Το email και ο κωδικός πρόσβασης δεν ταιριάζουν. Δοκίμασε ξανά ή συνδέσου με κωδικό στο email.</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>Αυτός ο τρόπος σύνδεσης δεν είναι ακόμα διαθέσιμος.</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>Ο λογαριασμός δεν έχει email που μπορούμε να χρησιμοποιήσουμε. Δοκίμασε άλλον τρόπο.</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>Η σύνδεση ακυρώθηκε.</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>Η σύνδεση απέτυχε. Δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>Γράψε τα έξι ψηφία του κωδικού.</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>Διάλεξε κωδικό πρόσβασης με τουλάχιστον 6 χαρακτήρες.</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>Γράψε τον κωδικό πρόσβασης. Έχει τουλάχιστον 6 χαρακτήρες.</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>Δεν είναι αυτός ο σύνδεσμος όπου κατέληξε η σύνδεσή σου. Αρχίζει με «wrenfieldstore://».</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>Κέντρο βοήθειας LOOMSTREET</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>Όροι και πολιτικές</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Νέο παράθυρο</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>Καρφίτσωμα ή ξεκαρφίτσωμα καρτέλας</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>Μετακίνηση καρτέλας πίσω</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>Μετακίνηση καρτέλας εμπρός</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>Άνοιγμα κομματιού πλαισίου σε πλήρη σελίδα</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>Άνοιγμα κομματιού πλαισίου σε νέα καρτέλα</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>Λήψη στιγμιότυπου</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Πλήρης οθόνη</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>Αρχή της ενότητας</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Επόμενη καρτέλα</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Προηγούμενη καρτέλα</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Προτεινόμενα</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Νεότερα</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>Τιμή: αύξουσα</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>Τιμή: φθίνουσα</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>Best sellers</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Σήμερα</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Χθες</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>Γυναίκα</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>Άνδρας</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>Πολυτέλεια</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>Τσάντες</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>Αξεσουάρ</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Από %1</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>Έως %1</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>Χωρίς επιστροφή</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Νέο</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>Μόνο ένα έμεινε</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>Μόνο %Ln έμεινε</numerusform>
            <numerusform>Μόνο %Ln έμειναν</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>Σχετικότητα</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>Αυτό το κομμάτι δεν επιστρέφεται</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>Έλεγξε μέγεθος και χρώμα πριν παραγγείλεις</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>Φτιαγμένο για σένα</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>Επιστρέφεται μόνο αν φτάσει ελαττωματικό</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>Φτιάχνεται με παραγγελία και θέλει περισσότερο χρόνο</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>Εντός 30 ημερών, αφόρετο, με όλα όσα το συνόδευαν</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>Κράτα κουτί, θήκη και χαρτιά</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>Εντός 30 ημερών, με καθαρές σόλες, στο κουτί τους</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>Δοκίμασέ τα πρώτα μέσα στο σπίτι</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>Εντός 30 ημερών, αφόρετο, με τα καρτελάκια</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>Διάλεξε πρώτα: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>%Ln προϊόν στο καλάθι σου</numerusform>
            <numerusform>%Ln προϊόντα στο καλάθι σου</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>Ο κωδικός δεν εφαρμόστηκε. Δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>Ο κωδικός «%1» δεν ισχύει για τα προϊόντα στο καλάθι σου.</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>Κέρδισες ΔΩΡΕΑΝ αποστολή σε όλο τον κόσμο</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>Ακόμα %1 για ΔΩΡΕΑΝ αποστολή σε όλο τον κόσμο</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>Η παραγγελία έγινε. Θα φανεί στις Παραγγελίες σε λίγα λεπτά.</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>Η παραγγελία %1 έγινε. Θα φανεί στις Παραγγελίες σε λίγα λεπτά.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln κομμάτι  ·  η επιβεβαίωση στάλθηκε στο email σου</numerusform>
            <numerusform>%Ln κομμάτια  ·  η επιβεβαίωση στάλθηκε στο email σου</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>Η σελίδα άργησε πολύ να φορτώσει.</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>Η σελίδα οδηγεί έξω από το ταμείο.</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>Η σελίδα σταμάτησε να λειτουργεί.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>Το ταμείο δεν άνοιξε. Δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>%1 λιγότερο τώρα</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>τη δουλειά</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>ραντεβού</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>πάρτι</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>γάμους</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>διακοπές</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>ταξίδια</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>κάθε μέρα</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>το Σαββατοκύριακο</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>το σχολείο</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>συνεντεύξεις</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>την αποφοίτηση</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>φεστιβάλ</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>την παραλία</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>βραδινή έξοδο</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>brunch</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>το γυμναστήριο</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>επίσημες περιστάσεις</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>Μόλις ήρθαν</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>Με βάση όσα αγαπάς</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>Νέες αφίξεις της εβδομάδας</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>Νέο αυτή την εβδομάδα</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>Δική μας επιλογή</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>Νέο αυτή την εβδομάδα · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>Με βάση όσα αγαπάς</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>Το αγαπούν όσοι σου μοιάζουν</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>Με βάση όσα βλέπεις</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>Στις τάσεις τώρα</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>Ταιριάζει στην αναζήτηση: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>Στο γούστο σου: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>Για %1</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>Στιλ: %1</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>γλυκό</translation>
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
        <translation>κομψό</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>μίνιμαλ</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>ρομαντικό</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translatorcomment>As in English.</translatorcomment>
        <translation>street</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>γκόθικ</translation>
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
        <translation>γαλλικό</translation>
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
        <translation>πανκ</translation>
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
        <translation>φεστιβάλ</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>κλασικό</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>σπορ</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>σικ</translation>
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
        <translation>κορεατικό</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>ιαπωνικό</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>νέο κινεζικό</translation>
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
        <translation>σέξι</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>χαριτωμένο</translation>
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
        <translation>θηλυκό</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>ανδρόγυνο</translation>
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
        <translation>επίσημο</translation>
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
        <translation>αβανγκάρντ</translation>
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
        <translation>γουέστερν</translation>
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
        <translation>Αρχική</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>Εκπτώσεις</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>Εισερχόμενα</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>Πάρα πολλές προσπάθειες. Περίμενε λίγο και δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>Η συνεδρία σου έληξε. Συνδέσου ξανά.</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>Γράψε το email σου.</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>Κάποια στοιχεία δεν φαίνονται σωστά. Έλεγξέ τα και δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>Το LOOMSTREET έχει κάποιο πρόβλημα τώρα. Δοκίμασε ξανά σε λίγο.</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>Δεν πέτυχε. Δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>Ήρθε μια απρόσμενη απάντηση. Δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>Δεν υπάρχει επικοινωνία με το LOOMSTREET. Δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>Λείπουν οι ρυθμίσεις της εφαρμογής.</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>Το αίτημα άργησε πολύ. Δοκίμασε ξανά.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>Άλλη %Ln ειδοποίηση σε περιμένει στα εισερχόμενα.</numerusform>
            <numerusform>Άλλες %Ln ειδοποιήσεις σε περιμένουν στα εισερχόμενα.</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>Μηνύματα συστήματος</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>Νέα για τον λογαριασμό και την υπηρεσία</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>Νέα παραγγελιών</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>Επιβεβαίωση, αποστολή και παράδοση παραγγελίας</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>Επιστροφές χρημάτων και προϊόντων</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>Επιστροφές χρημάτων και νέα των επιστροφών</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>Απαντήσεις της εξυπηρέτησης</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>Όταν σου απαντά η εξυπηρέτηση πελατών</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>Κομμάτια που ζήτησες είναι ξανά διαθέσιμα</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>Όσα αποθήκευσες ή είδες γίνονται φθηνότερα</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Δραστηριότητα στο Vessa</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>Likes, σχόλια, νέοι ακόλουθοι και μηνύματα</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>Αλλαγές επιπέδου, πόντοι και νέα κουπόνια</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>Προσφορές και εκδηλώσεις</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>Εκπτώσεις, νέες κυκλοφορίες και εκδηλώσεις του καταστήματος</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>Έστειλε ένα συνημμένο</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>Η παραγγελία έγινε</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Η παραγγελία σου επιβεβαιώθηκε. Θα φανεί στις Παραγγελίες σε λίγα λεπτά.</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>Η παραγγελία %1 επιβεβαιώθηκε. Θα φανεί στις Παραγγελίες σε λίγα λεπτά.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>Το LOOMSTREET δεν μπόρεσε να ενημερωθεί</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>Πάτησε «Ενημέρωση» στην κορυφή του παραθύρου για να εγκαταστήσεις τη νέα έκδοση από το είδωλο δίσκου.</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>Προεπισκόπηση ειδοποίησης</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>Εδώ θα εμφανίζονται τα νέα των παραγγελιών και οι απαντήσεις της εξυπηρέτησης πελατών.</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>Ντουλάπα</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>Όλα όσα έχεις, σε ένα μέρος</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>Στούντιο outfit</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>Συνδύασε κομμάτια και δες τα μαζί</translation>
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
        <translation>Τα outfit που κράτησες</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>Ιδέες για outfit</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>Νέοι τρόποι να φορέσεις όσα έχεις στην ντουλάπα σου</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>Συμβουλή μεγέθους</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>Οι διαστάσεις σου και το μέγεθος που τους ταιριάζει</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>Αναζήτηση με εικόνα</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>Βρες ένα κομμάτι από μια εικόνα του</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>Σύγκριση</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>Έως τέσσερα κομμάτια δίπλα δίπλα</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Έλεγχος για ενημερώσεις…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>Έχεις την πιο νέα έκδοση</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>Λήψη του LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>Έλεγχος της λήψης…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>Εγκατάσταση του LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>Ο έλεγχος για ενημερώσεις απέτυχε</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>Η λήψη της ενημέρωσης απέτυχε</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>Έτοιμη για εγκατάσταση</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>Εγκατάσταση της ενημέρωσης</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>Έτοιμο για εγκατάσταση: %1</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>Το LOOMSTREET %1 είναι η πιο νέα έκδοση.</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>Το LOOMSTREET κλείνει και η νέα έκδοση παίρνει τη θέση του.</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>Η λήψη έγινε. Κάνε επανεκκίνηση της εφαρμογής για να ολοκληρωθεί, αλλιώς θα εγκατασταθεί στην επόμενη έξοδο.</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>Στο παράθυρο που μόλις άνοιξε, σύρε το LOOMSTREET στις «Εφαρμογές» και διάλεξε «Αντικατάσταση». Μετά άνοιξε ξανά το LOOMSTREET.</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>Το LOOMSTREET δεν μπόρεσε να αντικατασταθεί σε αυτόν τον υπολογιστή. Εγκατάστησε τη νέα έκδοση από το είδωλο δίσκου. Θέλει λίγα δευτερόλεπτα.</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>Η έκδοση που έχεις δεν υποστηρίζεται πια.</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>Η ενημέρωση έχει ληφθεί. Κάνε επανεκκίνηση του LOOMSTREET για να ολοκληρωθεί, αλλιώς θα εγκατασταθεί στην επόμενη έξοδο.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>Ο έλεγχος για ενημερώσεις απέτυχε. Έλεγξε τη σύνδεση και δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>Η λήψη απέτυχε (HTTP %1).</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>Η λήψη ήταν ελλιπής ή άλλαξε στη διαδρομή. Δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>Το αρχείο που λήφθηκε δεν διαβάζεται.</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>Η λήψη δεν έχει υπογραφή του LOOMSTREET, γι’ αυτό δεν ανοίχτηκε.</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Λήψη και εγκατάσταση</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>Επανεκκίνηση για ενημέρωση</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>Άνοιγμα ειδώλου δίσκου</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>Φαίνεται ότι δεν υπάρχει σύνδεση.</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Η Mira άργησε πολύ να απαντήσει.</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>Στέλνεις μηνύματα πολύ γρήγορα. Περίμενε λίγο.</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>Το μήνυμα δεν μπόρεσε να σταλεί όπως είναι.</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>Το LOOMSTREET έχει κάποιο πρόβλημα τώρα.</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>Δεν υπάρχει επικοινωνία με το LOOMSTREET.</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>Διάλεξε μέγεθος για: %1</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>Εξαντλήθηκαν στο μεταξύ και δεν προστέθηκαν: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>Το ταμείο δεν άνοιξε. Έλεγξε τη σύνδεση και δοκίμασε ξανά.</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>Το ύψος ή το βάρος δεν φαίνεται σωστό. Έλεγξε τους αριθμούς και τις μονάδες.</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>Μία από τις διαστάσεις δεν φαίνεται σωστή. Έλεγξε τον αριθμό ή άφησέ την κενή.</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>Άνετη</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>Εφαρμοστή</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>Κανονική</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>Πώς να το φορέσω: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>Το μήνυμα δεν επιβεβαιώθηκε. Μπορείς να δοκιμάσεις ξανά.</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>Η συζήτηση είναι ενημερωμένη</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Η Mira απαντά</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Η Mira απαντά. Μπορείς να τα στείλεις σε λίγο.</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>Τα θέματα αποθηκεύονται σε αυτόν τον υπολογιστή. Η Mira κρατά τη μνήμη των συζητήσεών σας.</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>Βοήθησέ με να βρω κάτι</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>Look από την ντουλάπα μου</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>Τι να φορέσω απόψε</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>Το LOOMSTREET δεν έχει άδεια να δει πού είσαι. Γράψε την πόλη σου.</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>Η τοποθεσία σου δεν βρέθηκε. Γράψε την πόλη σου.</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>Δεν ξέρουμε αυτή την πόλη. Δοκίμασε μια μεγαλύτερη κοντά.</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Η Mira δεν μπορεί να απαντήσει τώρα. Δοκίμασε ξανά σε λίγο.</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Η Mira είναι σε άλλη κλήση. Δοκίμασε ξανά σε ένα λεπτό.</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>Η γραμμή κόλλησε λίγο. Το λες ξανά;</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>Η γραμμή έπεσε. Κάλεσε ξανά για να συνεχίσετε.</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>Η πρόσβαση στο μικρόφωνο είναι κλειστή. Άνοιξέ τη στις Ρυθμίσεις συστήματος › Απόρρητο και ασφάλεια › Μικρόφωνο και κάλεσε ξανά.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>Το μικρόφωνο δεν ξεκίνησε. Έλεγξε ότι είναι συνδεδεμένο και κάλεσε ξανά.</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>Σίγαση μικροφώνου σε κλήση</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>Προστέθηκε στο καλάθι σου</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>Προστέθηκε στο καλάθι σου: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>Δεν προστέθηκε. Δοκίμασε από τη σελίδα του προϊόντος.</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>Σε πηγαίνω εκεί…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Άνοιγμα: %1</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Προεπιλογή συστήματος</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Μη συνδεδεμένο</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>Πανωφόρια</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>Μπλούζες και τοπ</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>Παντελόνια και φούστες</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>Φορέματα</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>Παπούτσια</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>Extra</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>Ήπιος καιρός</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>Λιακάδα</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>Λίγα σύννεφα</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>Συννεφιά</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>Ομίχλη</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>Ψιλόβροχο</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>Βροχή</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>Χιόνι</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>Μπόρες</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>Καταιγίδα</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>Αυτό το αρχείο δεν υπάρχει πια.</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>Αυτό το αρχείο δεν διαβάζεται.</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>Αυτό το αρχείο είναι κενό.</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>Αυτό το αρχείο ξεπερνά τα 10 MB. Διάλεξε μικρότερο.</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>Στέλνονται μόνο εικόνες και αρχεία PDF.</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>Αυτό το μήνυμα ίσως δεν έφτασε.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>Σε απόκρυψη</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>Στον δρόμο</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>Παραδόθηκαν</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>Μήνυμα προς την εξυπηρέτηση πελατών</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>Συζήτηση με την εξυπηρέτηση πελατών</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
</TS>
