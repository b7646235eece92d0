<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en_US">
<context>
    <name>Loomstreet</name>
    <message>
        <source>You are here</source>
        <translation>आप यहाँ हैं</translation>
    </message>
    <message>
        <source>Open full page</source>
        <translation>पूरा पेज खोलें</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>भेजा जा रहा है…</translation>
    </message>
    <message>
        <source>Show less</source>
        <translation>कम दिखाएँ</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>सभी दिखाएँ</translation>
    </message>
    <message>
        <source>Enter sends, Shift+Enter begins a new line</source>
        <translation>Enter से भेजें, Shift+Enter से नई लाइन शुरू करें</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>भेजें</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>फिर कोशिश करें</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>हटाएँ</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 हटाएँ</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>पहले</translation>
    </message>
    <message>
        <source>Back to the year</source>
        <translation>साल पर वापस</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>बाद में</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>खुला हुआ</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>सिमटा हुआ</translation>
    </message>
    <message>
        <source>Jump to latest</source>
        <translation>सबसे नए पर जाएँ</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new messages</source>
        <translation>
            <numerusform>%Ln नया मैसेज</numerusform>
            <numerusform>%Ln नए मैसेज</numerusform>
        </translation>
    </message>
    <message>
        <source>You appear to be offline. Check your connection and try again.</source>
        <translation>लगता है आप ऑफ़लाइन हैं। कनेक्शन देखकर फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Hide the password</source>
        <translation>पासवर्ड छिपाएँ</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>पासवर्ड दिखाएँ</translation>
    </message>
    <message>
        <source>%1, was %2</source>
        <translation>%1, पहले %2</translation>
    </message>
    <message>
        <source>Sold out</source>
        <translation>सोल्ड आउट</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>काम जारी है</translation>
    </message>
    <message>
        <source>Remove from wishlist</source>
        <translation>विशलिस्ट से हटाएँ</translation>
    </message>
    <message>
        <source>Save to wishlist</source>
        <translation>विशलिस्ट में सेव करें</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>खोजें</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>पिछला</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>अगला</translation>
    </message>
    <message>
        <source>%1, sold out</source>
        <translation>%1, सोल्ड आउट</translation>
    </message>
    <message>
        <source>%1, recommended for you</source>
        <translation>%1, आपके लिए सही साइज़</translation>
    </message>
    <message>
        <source>Rated %L1 of 5, %2</source>
        <translation>5 में से %L1 रेटिंग, %2</translation>
    </message>
    <message>
        <source>Rated %L1 of 5</source>
        <translation>5 में से %L1 रेटिंग</translation>
    </message>
    <message>
        <source>Fewer</source>
        <comment>stepper.fewer</comment>
        <translation>घटाएँ</translation>
    </message>
    <message>
        <source>More</source>
        <comment>stepper.more</comment>
        <translation>बढ़ाएँ</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>वापस लें</translation>
    </message>
    <message>
        <source>Your account</source>
        <translation>आपका अकाउंट</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>साइन आउट करें</translation>
    </message>
    <message>
        <source>Your wardrobe, remembered</source>
        <translation>आपका वॉर्डरोब, हमें याद है</translation>
    </message>
    <message>
        <source>Everything here can be looked at and bought without an account. With one, the shop knows where your parcels are and what you are waiting for.</source>
        <translation>यहाँ सब कुछ बिना अकाउंट के देखा और ख़रीदा जा सकता है। अकाउंट हो, तो स्टोर को पता रहता है कि आपके पार्सल कहाँ हैं और आपको किसका इंतज़ार है।</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>साइन इन करें</translation>
    </message>
    <message>
        <source>Create account</source>
        <translation>अकाउंट बनाएँ</translation>
    </message>
    <message>
        <source>Orders in one place</source>
        <translation>सारे ऑर्डर एक जगह</translation>
    </message>
    <message>
        <source>Where each parcel is, and returns without searching for a receipt</source>
        <translation>कौन सा पार्सल कहाँ है, और रसीद ढूँढ़े बिना रिटर्न</translation>
    </message>
    <message>
        <source>A word when it matters</source>
        <translation>ज़रूरी बात पर ख़बर</translation>
    </message>
    <message>
        <source>Your size is back, or the price has come down</source>
        <translation>आपका साइज़ फिर आया, या दाम घटा</translation>
    </message>
    <message>
        <source>Membership and coupons</source>
        <translation>मेंबरशिप और कूपन</translation>
    </message>
    <message>
        <source>Points, tiers and what they open</source>
        <translation>पॉइंट, टियर और उनके फ़ायदे</translation>
    </message>
    <message>
        <source>A checkout that knows you</source>
        <translation>चेकआउट जो आपको पहचाने</translation>
    </message>
    <message>
        <source>Your address is there already</source>
        <translation>आपका पता पहले से तैयार</translation>
    </message>
    <message>
        <source>Customer Service</source>
        <translation>कस्टमर सर्विस</translation>
    </message>
    <message>
        <source>Orders, returns and sizes</source>
        <translation>ऑर्डर, रिटर्न और साइज़</translation>
    </message>
    <message>
        <source>MyLST</source>
        <translation>MyLST</translation>
    </message>
    <message>
        <source>Orders</source>
        <translation>ऑर्डर</translation>
    </message>
    <message>
        <source>On their way, and bought before</source>
        <translation>रास्ते में, और पहले ख़रीदे हुए</translation>
    </message>
    <message>
        <source>Track a package</source>
        <translation>पार्सल ट्रैक करें</translation>
    </message>
    <message>
        <source>By its number or the order’s</source>
        <translation>उसके या ऑर्डर के नंबर से</translation>
    </message>
    <message>
        <source>Returns</source>
        <translation>रिटर्न</translation>
    </message>
    <message>
        <source>Send something back</source>
        <translation>कुछ लौटाएँ</translation>
    </message>
    <message>
        <source>For you</source>
        <translation>आपके लिए</translation>
    </message>
    <message>
        <source>Wishlist</source>
        <translation>विशलिस्ट</translation>
    </message>
    <message>
        <source>Nothing saved yet</source>
        <translation>अभी कुछ सेव नहीं है</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces</source>
        <translation>
            <numerusform>%Ln पीस</numerusform>
            <numerusform>%Ln पीस</numerusform>
        </translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>अलर्ट</translation>
    </message>
    <message>
        <source>Back in stock, and lower prices</source>
        <translation>फिर स्टॉक में, और कम दाम</translation>
    </message>
    <message>
        <source>Membership</source>
        <translation>मेंबरशिप</translation>
    </message>
    <message>
        <source>Your tier and points</source>
        <translation>आपका टियर और पॉइंट</translation>
    </message>
    <message>
        <source>Coupons</source>
        <translation>कूपन</translation>
    </message>
    <message>
        <source>Yours to use at checkout</source>
        <translation>चेकआउट पर आपके काम के</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>अकाउंट</translation>
    </message>
    <message>
        <source>Without an account</source>
        <translation>बिना अकाउंट के</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>प्रोफ़ाइल</translation>
    </message>
    <message>
        <source>Name, birthday and newsletters</source>
        <translation>नाम, जन्मदिन और न्यूज़लेटर</translation>
    </message>
    <message>
        <source>Privacy</source>
        <translation>प्राइवेसी</translation>
    </message>
    <message>
        <source>What the store learns of you</source>
        <translation>स्टोर आपके बारे में क्या जानता है</translation>
    </message>
    <message>
        <source>Kept on this computer</source>
        <translation>इस कंप्यूटर पर सेव</translation>
    </message>
    <message>
        <source>Delete account…</source>
        <translation>अकाउंट डिलीट करें…</translation>
    </message>
    <message>
        <source>Your keyring does not answer</source>
        <translation>आपका कीरिंग जवाब नहीं दे रहा</translation>
    </message>
    <message>
        <source>It keeps your sign-in safe, and nobody can sign in without it. Unlock it, then try again.</source>
        <translation>आपका साइन-इन इसी में सुरक्षित रहता है, और इसके बिना साइन इन नहीं हो सकता। इसे अनलॉक करके फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Back in stock</source>
        <translation>फिर स्टॉक में</translation>
    </message>
    <message>
        <source>Price drop</source>
        <translation>दाम में कमी</translation>
    </message>
    <message>
        <source>In stock again</source>
        <translation>फिर से उपलब्ध</translation>
    </message>
    <message>
        <source>Now lower</source>
        <translation>अब कम दाम में</translation>
    </message>
    <message>
        <source>%1 when you asked</source>
        <translation>अलर्ट लगाते समय %1</translation>
    </message>
    <message>
        <source>Stop this alert</source>
        <translation>यह अलर्ट बंद करें</translation>
    </message>
    <message numerus="yes">
        <source>%Ln alerts</source>
        <translation>
            <numerusform>%Ln अलर्ट</numerusform>
            <numerusform>%Ln अलर्ट</numerusform>
        </translation>
    </message>
    <message>
        <source>We email you at %1 when a piece is back, or its price falls.</source>
        <translation>पीस फिर आने या दाम घटने पर हम %1 पर ईमेल करते हैं।</translation>
    </message>
    <message>
        <source>No alerts yet</source>
        <translation>अभी कोई अलर्ट नहीं</translation>
    </message>
    <message>
        <source>On a piece that is sold out in your size, press “Notify me when it&apos;s back”. On any other, “Tell me about a price drop”.</source>
        <translation>जो पीस आपके साइज़ में सोल्ड आउट हो, उस पर “आने पर बताएँ” दबाएँ। बाकी पर “दाम घटने पर बताएँ”।</translation>
    </message>
    <message>
        <source>New In</source>
        <translation>नया आया</translation>
    </message>
    <message>
        <source>Sign in to see your alerts</source>
        <translation>अपने अलर्ट देखने के लिए साइन इन करें</translation>
    </message>
    <message>
        <source>We tell you when a piece is back in your size, or costs less.</source>
        <translation>पीस आपके साइज़ में फिर आए या उसका दाम घटे, तो हम बताते हैं।</translation>
    </message>
    <message numerus="yes">
        <source>We won&apos;t email you about them.</source>
        <translation>
            <numerusform>इसके लिए ईमेल नहीं आएगा।</numerusform>
            <numerusform>इनके लिए ईमेल नहीं आएगा।</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln pieces</source>
        <translation>
            <numerusform>%1, %Ln पीस</numerusform>
            <numerusform>%1, %Ln पीस</numerusform>
        </translation>
    </message>
    <message>
        <source>Designers</source>
        <translation>डिज़ाइनर</translation>
    </message>
    <message numerus="yes">
        <source>%Ln designers</source>
        <translation>
            <numerusform>%Ln डिज़ाइनर</numerusform>
            <numerusform>%Ln डिज़ाइनर</numerusform>
        </translation>
    </message>
    <message>
        <source>Find a designer</source>
        <translation>डिज़ाइनर ढूँढ़ें</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>साफ़ करें</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>अक्षर</translation>
    </message>
    <message>
        <source>Other designers</source>
        <translation>दूसरे डिज़ाइनर</translation>
    </message>
    <message>
        <source>Designers with %1</source>
        <translation>%1 से शुरू होने वाले डिज़ाइनर</translation>
    </message>
    <message>
        <source>No designers match “%1”</source>
        <translation>“%1” नाम का कोई डिज़ाइनर नहीं मिला</translation>
    </message>
    <message>
        <source>Check the spelling, or look through all of them.</source>
        <translation>स्पेलिंग देखें, या सभी डिज़ाइनर देख लें।</translation>
    </message>
    <message>
        <source>Show all designers</source>
        <translation>सभी डिज़ाइनर दिखाएँ</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>यहाँ अभी कुछ नहीं है</translation>
    </message>
    <message>
        <source>New pieces arrive every week.</source>
        <translation>हर हफ़्ते नए पीस आते हैं।</translation>
    </message>
    <message>
        <source>Explore</source>
        <translation>एक्सप्लोर करें</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reviews</source>
        <translation>
            <numerusform>%Ln रिव्यू</numerusform>
            <numerusform>%Ln रिव्यू</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sold</source>
        <translation>
            <numerusform>%Ln बिका</numerusform>
            <numerusform>%Ln बिके</numerusform>
        </translation>
    </message>
    <message>
        <source>Presale</source>
        <translation>प्री-सेल</translation>
    </message>
    <message>
        <source>Most chosen: %1</source>
        <translation>सबसे ज़्यादा चुना गया: %1</translation>
    </message>
    <message>
        <source>Help me style this</source>
        <translation>इसे कैसे स्टाइल करूँ?</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>तुलना करें</translation>
    </message>
    <message>
        <source>Beside pieces you saved or viewed</source>
        <translation>आपके सेव किए या देखे हुए पीस के साथ</translation>
    </message>
    <message>
        <source>FREE worldwide shipping</source>
        <translation>दुनिया भर में फ़्री शिपिंग</translation>
    </message>
    <message>
        <source>On carts of %1 or more</source>
        <translation>%1 या उससे ज़्यादा की ख़रीद पर</translation>
    </message>
    <message>
        <source>Good to know</source>
        <translation>जानने लायक बातें</translation>
    </message>
    <message>
        <source>Import duties included</source>
        <translation>आयात शुल्क शामिल</translation>
    </message>
    <message>
        <source>Shipping calculated at checkout</source>
        <translation>शिपिंग का हिसाब चेकआउट पर</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it&apos;s back</source>
        <translation>आने पर हम ईमेल करेंगे</translation>
    </message>
    <message>
        <source>Notify me when it&apos;s back</source>
        <translation>आने पर बताएँ</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>जुड़ गया</translation>
    </message>
    <message>
        <source>Add to Cart</source>
        <translation>कार्ट में जोड़ें</translation>
    </message>
    <message>
        <source>Press to withdraw</source>
        <translation>वापस लेने के लिए दबाएँ</translation>
    </message>
    <message>
        <source>Opening checkout…</source>
        <translation>चेकआउट खुल रहा है…</translation>
    </message>
    <message>
        <source>Buy Now</source>
        <translation>अभी ख़रीदें</translation>
    </message>
    <message>
        <source>Call with %1</source>
        <translation>%1 के साथ कॉल</translation>
    </message>
    <message>
        <source>Open in a Window</source>
        <translation>विंडो में खोलें</translation>
    </message>
    <message>
        <source>End</source>
        <translation>ख़त्म करें</translation>
    </message>
    <message>
        <source>End the call</source>
        <translation>कॉल ख़त्म करें</translation>
    </message>
    <message>
        <source>Show the call</source>
        <translation>कॉल दिखाएँ</translation>
    </message>
    <message>
        <source>Call %1</source>
        <translation>%1 को कॉल करें</translation>
    </message>
    <message>
        <source>Call again</source>
        <translation>फिर कॉल करें</translation>
    </message>
    <message>
        <source>Microphone is on</source>
        <translation>माइक्रोफ़ोन चालू है</translation>
    </message>
    <message>
        <source>Microphone is muted</source>
        <translation>माइक्रोफ़ोन म्यूट है</translation>
    </message>
    <message>
        <source>Calling…</source>
        <translation>कॉल लग रही है…</translation>
    </message>
    <message>
        <source>Thinking</source>
        <translation>सोच रही है</translation>
    </message>
    <message>
        <source>Speaking</source>
        <translation>बोल रही है</translation>
    </message>
    <message>
        <source>Muted</source>
        <translation>म्यूट है</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>सुन रही है</translation>
    </message>
    <message>
        <source>Call ended</source>
        <translation>कॉल ख़त्म हुई</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>अनम्यूट करें</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>म्यूट करें</translation>
    </message>
    <message>
        <source>Discount code</source>
        <translation>छूट का कोड</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>लगाएँ</translation>
    </message>
    <message>
        <source>Couldn&apos;t load your cart</source>
        <translation>आपका कार्ट लोड नहीं हुआ</translation>
    </message>
    <message>
        <source>Your items are safe. Check your connection and try again.</source>
        <translation>आपके पीस सुरक्षित हैं। कनेक्शन देखकर फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Your cart is empty</source>
        <translation>आपका कार्ट खाली है</translation>
    </message>
    <message>
        <source>Items you add will show up here.</source>
        <translation>जो पीस जोड़ेंगे, वे यहाँ दिखेंगे।</translation>
    </message>
    <message>
        <source>Continue Shopping</source>
        <translation>ख़रीदारी जारी रखें</translation>
    </message>
    <message>
        <source>%1 was taken out.</source>
        <translation>हटा दिया गया: %1।</translation>
    </message>
    <message numerus="yes">
        <source>Your earlier cart has expired. %Ln items were in it.</source>
        <translation>
            <numerusform>आपके पिछले कार्ट की समय-सीमा ख़त्म हो गई। उसमें %Ln पीस था।</numerusform>
            <numerusform>आपके पिछले कार्ट की समय-सीमा ख़त्म हो गई। उसमें %Ln पीस थे।</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>वापस रखें</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>%1 की मात्रा</translation>
    </message>
    <message>
        <source>Remove from Cart</source>
        <translation>कार्ट से हटाएँ</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>ख़ारिज करें</translation>
    </message>
    <message>
        <source>Cart</source>
        <translation>कार्ट</translation>
    </message>
    <message>
        <source>Shopping bag</source>
        <translation>कार्ट</translation>
    </message>
    <message>
        <source>Show as Side Drawer</source>
        <translation>साइड ड्रॉअर में दिखाएँ</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>उप-योग</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>छूट</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>कुल</translation>
    </message>
    <message>
        <source>Import duties included · Shipping calculated at checkout</source>
        <translation>आयात शुल्क शामिल · शिपिंग का हिसाब चेकआउट पर</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>चेकआउट</translation>
    </message>
    <message>
        <source>Finish paying in the checkout window. Your cart stays as it is.</source>
        <translation>भुगतान चेकआउट विंडो में पूरा करें। आपका कार्ट ऐसा ही रहेगा।</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>उपलब्ध नहीं</translation>
    </message>
    <message>
        <source>Collection</source>
        <translation>कलेक्शन</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new in the last 30 days</source>
        <translation>
            <numerusform>पिछले 30 दिनों में %Ln नया</numerusform>
            <numerusform>पिछले 30 दिनों में %Ln नए</numerusform>
        </translation>
    </message>
    <message>
        <source>This collection isn&apos;t available</source>
        <translation>यह कलेक्शन उपलब्ध नहीं है</translation>
    </message>
    <message>
        <source>It may have been renamed or isn&apos;t sold in %1</source>
        <translation>हो सकता है इसका नाम बदल गया हो, या यह इस देश में न बिकता हो: %1</translation>
    </message>
    <message>
        <source>No items match these filters</source>
        <translation>इन फ़िल्टर से कोई पीस नहीं मिला</translation>
    </message>
    <message>
        <source>Remove a filter to see more.</source>
        <translation>ज़्यादा देखने के लिए कोई फ़िल्टर हटाएँ।</translation>
    </message>
    <message>
        <source>Complete the look</source>
        <translation>लुक पूरा करें</translation>
    </message>
    <message>
        <source>Pieces to wear with it</source>
        <translation>इसके साथ पहनने के पीस</translation>
    </message>
    <message>
        <source>Also admired</source>
        <translation>ये भी पसंद किए गए</translation>
    </message>
    <message>
        <source>By those who looked at this piece</source>
        <translation>इस पीस को देखने वालों की पसंद</translation>
    </message>
    <message>
        <source>You may also like</source>
        <translation>शायद ये भी पसंद आएँ</translation>
    </message>
    <message>
        <source>Add pieces to compare</source>
        <translation>तुलना के लिए पीस जोड़ें</translation>
    </message>
    <message>
        <source>Add a piece</source>
        <translation>पीस जोड़ें</translation>
    </message>
    <message>
        <source>From your wishlist and what you viewed</source>
        <translation>आपकी विशलिस्ट और देखे हुए पीस से</translation>
    </message>
    <message>
        <source>Save pieces or look at them, and add them here.</source>
        <translation>पीस सेव करें या देखें, और यहाँ जोड़ें।</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>%1 से तुलना करें</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>साइज़</translation>
    </message>
    <message>
        <source>Composition</source>
        <translation>मटीरियल</translation>
    </message>
    <message>
        <source>Remove from the comparison</source>
        <translation>तुलना से हटाएँ</translation>
    </message>
    <message>
        <source>Not available in your market.</source>
        <translation>आपके देश में उपलब्ध नहीं।</translation>
    </message>
    <message>
        <source>not stated</source>
        <translation>नहीं बताया गया</translation>
    </message>
    <message>
        <source>Sizes of %1</source>
        <translation>%1 के साइज़</translation>
    </message>
    <message>
        <source>Back to the first</source>
        <translation>शुरुआत पर वापस</translation>
    </message>
    <message>
        <source>Vessa</source>
        <translation>Vessa</translation>
    </message>
    <message>
        <source>What others wear</source>
        <translation>दूसरे क्या पहन रहे हैं</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>घूमकर देखें</translation>
    </message>
    <message>
        <source>Following</source>
        <comment>sidebar.following</comment>
        <translation>फ़ॉलोइंग</translation>
    </message>
    <message>
        <source>News from your designers</source>
        <translation>आपके डिज़ाइनर से ख़बरें</translation>
    </message>
    <message>
        <source>See what&apos;s new</source>
        <translation>नया क्या है, देखें</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>sidebar.closet</comment>
        <translation>वॉर्डरोब</translation>
    </message>
    <message>
        <source>What should I wear today?</source>
        <translation>आज क्या पहनूँ?</translation>
    </message>
    <message>
        <source>Open the closet</source>
        <translation>वॉर्डरोब खोलें</translation>
    </message>
    <message>
        <source>Your orders and alerts</source>
        <translation>आपके ऑर्डर और अलर्ट</translation>
    </message>
    <message>
        <source>Your membership</source>
        <translation>आपकी मेंबरशिप</translation>
    </message>
    <message>
        <source>See what it brings</source>
        <translation>इसके फ़ायदे देखें</translation>
    </message>
    <message>
        <source>Where is my package?</source>
        <translation>मेरा पार्सल कहाँ है?</translation>
    </message>
    <message>
        <source>Order %1</source>
        <translation>ऑर्डर %1</translation>
    </message>
    <message>
        <source>See the order</source>
        <translation>ऑर्डर देखें</translation>
    </message>
    <message>
        <source>Price drops</source>
        <translation>घटे हुए दाम</translation>
    </message>
    <message>
        <source>Your pieces cost less now</source>
        <translation>आपके पीस अब कम दाम में</translation>
    </message>
    <message>
        <source>Keep what you love</source>
        <translation>जो पसंद आए, सहेज लें</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces saved</source>
        <translation>
            <numerusform>%Ln पीस सेव किया</numerusform>
            <numerusform>%Ln पीस सेव किए</numerusform>
        </translation>
    </message>
    <message>
        <source>See the wishlist</source>
        <translation>विशलिस्ट देखें</translation>
    </message>
    <message>
        <source>Delete your account?</source>
        <translation>अपना अकाउंट डिलीट करें?</translation>
    </message>
    <message>
        <source>Your profile, alerts, membership and the list of your orders are deleted for good. Orders on their way still arrive. This cannot be undone.</source>
        <translation>आपकी प्रोफ़ाइल, अलर्ट, मेंबरशिप और ऑर्डर की सूची हमेशा के लिए डिलीट हो जाएगी। जो ऑर्डर रास्ते में हैं, वे फिर भी पहुँचेंगे। इसे वापस नहीं लिया जा सकता।</translation>
    </message>
    <message>
        <source>Type your email address to confirm</source>
        <translation>पुष्टि के लिए अपना ईमेल पता लिखें</translation>
    </message>
    <message>
        <source>Delete account</source>
        <translation>अकाउंट डिलीट करें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Collections</source>
        <translation>कलेक्शन</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>फ़िल्टर</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>सभी फ़िल्टर हटाएँ</translation>
    </message>
    <message>
        <source>Find in %1</source>
        <translation>%1 में ढूँढ़ें</translation>
    </message>
    <message>
        <source>Nothing by that name</source>
        <translation>इस नाम से कुछ नहीं मिला</translation>
    </message>
    <message>
        <source>Show fewer</source>
        <translation>कम दिखाएँ</translation>
    </message>
    <message numerus="yes">
        <source>Show all %Ln</source>
        <translation>
            <numerusform>सभी %Ln दिखाएँ</numerusform>
            <numerusform>सभी %Ln दिखाएँ</numerusform>
        </translation>
    </message>
    <message>
        <source>From</source>
        <translation>कम से कम</translation>
    </message>
    <message>
        <source>Up to</source>
        <translation>ज़्यादा से ज़्यादा</translation>
    </message>
    <message>
        <source>Show pieces</source>
        <translation>पीस दिखाएँ</translation>
    </message>
    <message numerus="yes">
        <source>Show %Ln pieces</source>
        <translation>
            <numerusform>%Ln पीस दिखाएँ</numerusform>
            <numerusform>%Ln पीस दिखाएँ</numerusform>
        </translation>
    </message>
    <message>
        <source>Close filters</source>
        <translation>फ़िल्टर बंद करें</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, %L1 can be compared</source>
        <translation>
            <numerusform>%Ln चुना, %L1 की तुलना हो सकती है</numerusform>
            <numerusform>%Ln चुने, %L1 की तुलना हो सकती है</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen</source>
        <translation>
            <numerusform>%Ln चुना</numerusform>
            <numerusform>%Ln चुने</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose two to four pieces</source>
        <translation>दो से चार पीस चुनें</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>हो गया</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>चुनें</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>सबसे नए पहले</translation>
    </message>
    <message>
        <source>Price: low to high</source>
        <translation>दाम: कम से ज़्यादा</translation>
    </message>
    <message>
        <source>Price: high to low</source>
        <translation>दाम: ज़्यादा से कम</translation>
    </message>
    <message numerus="yes">
        <source>You&apos;ve seen all %Ln</source>
        <translation>
            <numerusform>आपने कुल %Ln पीस देख लिया</numerusform>
            <numerusform>आपने सभी %Ln देख लिए</numerusform>
        </translation>
    </message>
    <message>
        <source>Collection: %1</source>
        <translation>कलेक्शन: %1</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 खोलें</translation>
    </message>
    <message>
        <source>Choose a size</source>
        <translation>साइज़ चुनें</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>साइज़</translation>
    </message>
    <message>
        <source>Recommended for you: %1</source>
        <translation>आपके लिए सही: %1</translation>
    </message>
    <message>
        <source>In your cart</source>
        <translation>आपके कार्ट में</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>बदलें</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>छोड़ दें</translation>
    </message>
    <message numerus="yes">
        <source>%L1 of %Ln pieces</source>
        <translation>
            <numerusform>%Ln पीस में से %L1</numerusform>
            <numerusform>%Ln पीस में से %L1</numerusform>
        </translation>
    </message>
    <message>
        <source>Instead of %1</source>
        <translation>%1 की जगह</translation>
    </message>
    <message>
        <source>Nothing like it at the moment.</source>
        <translation>अभी इस जैसा कुछ नहीं है।</translation>
    </message>
    <message>
        <source>Mira&apos;s choice</source>
        <translation>Mira की पसंद</translation>
    </message>
    <message>
        <source>Your look</source>
        <translation>आपका लुक</translation>
    </message>
    <message>
        <source>Choose the sizes, swap what you like less, leave out what you have.</source>
        <translation>साइज़ चुनें, जो कम पसंद हो उसे बदलें, जो पहले से है उसे छोड़ दें।</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>सेमी</translation>
    </message>
    <message>
        <source>in</source>
        <comment>unit.inch</comment>
        <translation>इंच</translation>
    </message>
    <message>
        <source>Your measurements</source>
        <translation>आपके नाप</translation>
    </message>
    <message>
        <source>Mira works out your sizes from them. They go into your conversation, and a copy stays on this computer until you sign out.</source>
        <translation>Mira इनसे आपका साइज़ तय करती है। ये आपकी बातचीत में जुड़ते हैं, और एक कॉपी साइन आउट करने तक इस कंप्यूटर पर रहती है।</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>इकाई</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>मीट्रिक</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>इंपीरियल</translation>
    </message>
    <message>
        <source>Height (%1)</source>
        <translation>लंबाई (%1)</translation>
    </message>
    <message>
        <source>ft</source>
        <translation>फ़ुट</translation>
    </message>
    <message>
        <source>Weight (%1)</source>
        <translation>वज़न (%1)</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>किग्रा</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>पाउंड</translation>
    </message>
    <message>
        <source>Bust (%1)</source>
        <translation>बस्ट (%1)</translation>
    </message>
    <message>
        <source>Waist (%1)</source>
        <translation>कमर (%1)</translation>
    </message>
    <message>
        <source>Hip (%1)</source>
        <translation>हिप (%1)</translation>
    </message>
    <message>
        <source>Leave these empty if you don&apos;t know them.</source>
        <translation>न पता हों तो इन्हें खाली छोड़ दें।</translation>
    </message>
    <message>
        <source>Preferred fit</source>
        <translation>पसंदीदा फ़िट</translation>
    </message>
    <message>
        <source>Send to Mira</source>
        <translation>Mira को भेजें</translation>
    </message>
    <message>
        <source>Delete from this computer</source>
        <translation>इस कंप्यूटर से डिलीट करें</translation>
    </message>
    <message>
        <source>Build a look around it</source>
        <translation>इसके साथ लुक बनाएँ</translation>
    </message>
    <message>
        <source>Choose a size and add to cart</source>
        <translation>साइज़ चुनकर कार्ट में जोड़ें</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>%1 को लिखें</translation>
    </message>
    <message>
        <source>Look around %1</source>
        <translation>%1 के साथ लुक</translation>
    </message>
    <message>
        <source>My pieces · %L1</source>
        <translation>मेरे पीस · %L1</translation>
    </message>
    <message>
        <source>Style with my pieces</source>
        <translation>मेरे पीस के साथ स्टाइल करें</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>मौसम</translation>
    </message>
    <message>
        <source>More</source>
        <translation>और</translation>
    </message>
    <message numerus="yes">
        <source>See the look: %Ln pieces, each in your size</source>
        <translation>
            <numerusform>लुक देखें: %Ln पीस, आपके साइज़ में</numerusform>
            <numerusform>लुक देखें: %Ln पीस, सभी आपके साइज़ में</numerusform>
        </translation>
    </message>
    <message>
        <source>New topic</source>
        <translation>नया विषय</translation>
    </message>
    <message>
        <source>Topics…</source>
        <translation>विषय…</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>रीफ़्रेश करें</translation>
    </message>
    <message>
        <source>Style with my pieces…</source>
        <translation>मेरे पीस के साथ स्टाइल करें…</translation>
    </message>
    <message>
        <source>My measurements…</source>
        <translation>मेरे नाप…</translation>
    </message>
    <message>
        <source>Weather…</source>
        <translation>मौसम…</translation>
    </message>
    <message>
        <source>Show beside the Page</source>
        <translation>पेज के साथ दिखाएँ</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>सुझाव</translation>
    </message>
    <message>
        <source>Send: %1</source>
        <translation>भेजें: %1</translation>
    </message>
    <message>
        <source>Conversation with %1</source>
        <translation>%1 के साथ बातचीत</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>नाम बदलें</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>डिलीट करें</translation>
    </message>
    <message>
        <source>Name of the topic</source>
        <translation>विषय का नाम</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>“%1” को डिलीट करें?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>रहने दें</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>विषय</translation>
    </message>
    <message>
        <source>You</source>
        <translation>आप</translation>
    </message>
    <message>
        <source>Enter my measurements</source>
        <translation>मेरे नाप भरें</translation>
    </message>
    <message>
        <source>%1 uses these first, and adds something new only where it is missing.</source>
        <translation>%1 पहले इन्हें लेती है, और जहाँ कमी हो वहीं कुछ नया जोड़ती है।</translation>
    </message>
    <message>
        <source>Nothing to style with yet</source>
        <translation>स्टाइल करने को अभी कुछ नहीं</translation>
    </message>
    <message>
        <source>Pieces in your bag and on your wishlist show here.</source>
        <translation>आपके कार्ट और विशलिस्ट के पीस यहाँ दिखते हैं।</translation>
    </message>
    <message numerus="yes">
        <source>%Ln chosen, the most there can be</source>
        <translation>
            <numerusform>%Ln चुना, इससे ज़्यादा नहीं</numerusform>
            <numerusform>%Ln चुने, इससे ज़्यादा नहीं</numerusform>
        </translation>
    </message>
    <message>
        <source>In your bag</source>
        <translation>आपके कार्ट में</translation>
    </message>
    <message>
        <source>On your wishlist</source>
        <translation>आपकी विशलिस्ट में</translation>
    </message>
    <message>
        <source>Where are you? The look will suit the day.</source>
        <translation>आप कहाँ हैं? लुक मौसम के हिसाब से होगा।</translation>
    </message>
    <message>
        <source>Style me for the weather</source>
        <translation>मौसम के हिसाब से लुक</translation>
    </message>
    <message>
        <source>City</source>
        <translation>शहर</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>सेट करें</translation>
    </message>
    <message>
        <source>Use my location</source>
        <translation>मेरी लोकेशन लें</translation>
    </message>
    <message>
        <source>What are you dressing for?</source>
        <translation>किस मौके के लिए तैयार होना है?</translation>
    </message>
    <message>
        <source>Tell %1 the occasion, a piece you love or a budget, and she puts it together.</source>
        <translation>%1 को मौका, कोई पसंदीदा पीस या बजट बताएँ, और वह लुक तैयार कर देगी।</translation>
    </message>
    <message>
        <source>Sign in to see what concerns your orders and your alerts.</source>
        <translation>अपने ऑर्डर और अलर्ट की ख़बरें देखने के लिए साइन इन करें।</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>दिखाएँ</translation>
    </message>
    <message>
        <source>All</source>
        <translation>सभी</translation>
    </message>
    <message>
        <source>System</source>
        <translation>सिस्टम</translation>
    </message>
    <message>
        <source>Customer service</source>
        <translation>कस्टमर सर्विस</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>नोटिफ़िकेशन</translation>
    </message>
    <message>
        <source>Sign in to see your notifications</source>
        <translation>अपने नोटिफ़िकेशन देखने के लिए साइन इन करें</translation>
    </message>
    <message>
        <source>Nothing new</source>
        <translation>कुछ नया नहीं</translation>
    </message>
    <message>
        <source>Orders on their way, pieces back in stock and lower prices are told here.</source>
        <translation>रास्ते में ऑर्डर, फिर स्टॉक में आए पीस और घटे दाम की ख़बर यहाँ मिलती है।</translation>
    </message>
    <message>
        <source>What concerns your orders and the pieces you follow will be here.</source>
        <translation>आपके ऑर्डर और फ़ॉलो किए गए पीस की बातें यहाँ होंगी।</translation>
    </message>
    <message>
        <source>Unread</source>
        <translation>नहीं पढ़ा</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>सभी को पढ़ा हुआ मार्क करें</translation>
    </message>
    <message>
        <source>Notification settings</source>
        <translation>नोटिफ़िकेशन सेटिंग</translation>
    </message>
    <message>
        <source>Expected %1</source>
        <translation>अनुमानित डिलीवरी: %1</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>ऑर्डर</translation>
    </message>
    <message>
        <source>Placed on %1</source>
        <translation>ऑर्डर की तारीख़: %1</translation>
    </message>
    <message numerus="yes">
        <source>Packages</source>
        <translation>
            <numerusform>पार्सल</numerusform>
            <numerusform>पार्सल</numerusform>
        </translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>पीस</translation>
    </message>
    <message>
        <source>Returns &amp; refunds</source>
        <translation>रिटर्न और रिफ़ंड</translation>
    </message>
    <message>
        <source>This order isn&apos;t here</source>
        <translation>यह ऑर्डर यहाँ नहीं है</translation>
    </message>
    <message>
        <source>Your new order shows here in a few minutes.</source>
        <translation>आपका नया ऑर्डर कुछ मिनटों में यहाँ दिखेगा।</translation>
    </message>
    <message>
        <source>It may belong to another account.</source>
        <translation>हो सकता है यह किसी और अकाउंट का हो।</translation>
    </message>
    <message>
        <source>Sign in to see this order</source>
        <translation>यह ऑर्डर देखने के लिए साइन इन करें</translation>
    </message>
    <message>
        <source>A package can be followed by its number without an account.</source>
        <translation>पार्सल को बिना अकाउंट के भी नंबर से ट्रैक किया जा सकता है।</translation>
    </message>
    <message>
        <source>Quantity %L1</source>
        <translation>मात्रा %L1</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>छिपा हुआ</translation>
    </message>
    <message>
        <source>Show order again</source>
        <translation>ऑर्डर फिर दिखाएँ</translation>
    </message>
    <message>
        <source>Hide order</source>
        <translation>ऑर्डर छिपाएँ</translation>
    </message>
    <message>
        <source>Which orders</source>
        <translation>कौन से ऑर्डर</translation>
    </message>
    <message>
        <source>On the way</source>
        <translation>रास्ते में</translation>
    </message>
    <message>
        <source>Delivered</source>
        <translation>डिलीवर हो गया</translation>
    </message>
    <message>
        <source>All your orders are hidden</source>
        <translation>आपके सभी ऑर्डर छिपे हुए हैं</translation>
    </message>
    <message>
        <source>Nothing on the way</source>
        <translation>रास्ते में कुछ नहीं</translation>
    </message>
    <message>
        <source>Nothing delivered yet</source>
        <translation>अभी कुछ डिलीवर नहीं हुआ</translation>
    </message>
    <message>
        <source>No returns</source>
        <translation>कोई रिटर्न नहीं</translation>
    </message>
    <message>
        <source>Some of them are hidden.</source>
        <translation>इनमें से कुछ छिपे हुए हैं।</translation>
    </message>
    <message>
        <source>Show hidden orders</source>
        <translation>छिपे हुए ऑर्डर दिखाएँ</translation>
    </message>
    <message>
        <source>All orders</source>
        <translation>सभी ऑर्डर</translation>
    </message>
    <message>
        <source>Your order is on its way to this page</source>
        <translation>आपका ऑर्डर इस पेज पर आ रहा है</translation>
    </message>
    <message>
        <source>No orders yet</source>
        <translation>अभी कोई ऑर्डर नहीं</translation>
    </message>
    <message>
        <source>What you order shows here, with where it is on its way to you.</source>
        <translation>आपके ऑर्डर यहाँ दिखते हैं, और यह भी कि वे कहाँ तक पहुँचे।</translation>
    </message>
    <message>
        <source>Sign in to see your orders</source>
        <translation>अपने ऑर्डर देखने के लिए साइन इन करें</translation>
    </message>
    <message>
        <source>Where they are, what is in them, and how to send something back.</source>
        <translation>वे कहाँ हैं, उनमें क्या है, और कुछ कैसे लौटाएँ।</translation>
    </message>
    <message>
        <source>Hidden from your orders on this computer.</source>
        <translation>इस कंप्यूटर पर आपके ऑर्डर से छिपा दिया गया।</translation>
    </message>
    <message>
        <source>Step %L1 of %L2: %3</source>
        <translation>%L2 में से चरण %L1: %3</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>सारांश</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>डिलीवरी का पता</translation>
    </message>
    <message>
        <source>Start a return</source>
        <translation>रिटर्न शुरू करें</translation>
    </message>
    <message>
        <source>Package %1</source>
        <translation>पार्सल %1</translation>
    </message>
    <message>
        <source>Nobody knows this number yet</source>
        <translation>यह नंबर अभी कहीं दर्ज नहीं है</translation>
    </message>
    <message>
        <source>A new package can take a day to be known to its carrier.</source>
        <translation>नए पार्सल को कूरियर के पास दर्ज होने में एक दिन लग सकता है।</translation>
    </message>
    <message>
        <source>Open the carrier&apos;s page</source>
        <translation>कूरियर का पेज खोलें</translation>
    </message>
    <message>
        <source>The carrier has not told anything of it yet.</source>
        <translation>कूरियर से अभी कोई ख़बर नहीं आई।</translation>
    </message>
    <message>
        <source>What happened to the package</source>
        <translation>पार्सल का सफ़र</translation>
    </message>
    <message>
        <source>Temporarily unavailable</source>
        <translation>फ़िलहाल उपलब्ध नहीं</translation>
    </message>
    <message>
        <source>This feature is paused for now. Please try again later.</source>
        <translation>यह सुविधा अभी रुकी हुई है। कृपया बाद में फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>सूची से हटाएँ</translation>
    </message>
    <message>
        <source>This piece isn&apos;t available</source>
        <translation>यह पीस उपलब्ध नहीं है</translation>
    </message>
    <message>
        <source>It may be sold out for good, or isn&apos;t sold in %1.</source>
        <translation>हो सकता है यह हमेशा के लिए बिक गया हो, या इस देश में न बिकता हो: %1।</translation>
    </message>
    <message>
        <source>We&apos;ll email you when it costs less</source>
        <translation>दाम घटने पर हम ईमेल करेंगे</translation>
    </message>
    <message>
        <source>Tell me about a price drop</source>
        <translation>दाम घटने पर बताएँ</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces cost less than when you saw them</source>
        <translation>
            <numerusform>%Ln पीस का दाम देखते समय से कम है</numerusform>
            <numerusform>%Ln पीस के दाम देखते समय से कम हैं</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to watch yet</source>
        <translation>नज़र रखने को अभी कुछ नहीं</translation>
    </message>
    <message>
        <source>No price drops right now</source>
        <translation>अभी कोई दाम नहीं घटा</translation>
    </message>
    <message>
        <source>Save a piece or look at it, and you see here when it costs less.</source>
        <translation>कोई पीस सेव करें या देखें, दाम घटने पर वह यहाँ दिखेगा।</translation>
    </message>
    <message>
        <source>Your saved and viewed pieces cost what they did when you saw them, or were seen in another currency.</source>
        <translation>आपके सेव किए और देखे हुए पीस के दाम वही हैं, या वे किसी और मुद्रा में देखे गए थे।</translation>
    </message>
    <message>
        <source>Final Sale</source>
        <translation>फ़ाइनल सेल</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>तस्वीरें</translation>
    </message>
    <message>
        <source>Picture %L1 of %L2</source>
        <translation>%L2 में से तस्वीर %L1</translation>
    </message>
    <message>
        <source>%1, picture %L2</source>
        <translation>%1, तस्वीर %L2</translation>
    </message>
    <message>
        <source>See all</source>
        <translation>सभी देखें</translation>
    </message>
    <message>
        <source>Not interested</source>
        <translation>पसंद नहीं</translation>
    </message>
    <message numerus="yes">
        <source>After %Ln days: %1</source>
        <translation>
            <numerusform>%Ln दिन बाद: %1</numerusform>
            <numerusform>%Ln दिन बाद: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The store answered: %1</source>
        <translation>स्टोर का जवाब: %1</translation>
    </message>
    <message>
        <source>Reviews</source>
        <translation>रिव्यू</translation>
    </message>
    <message>
        <source>More reviews</source>
        <translation>और रिव्यू</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>विवरण</translation>
    </message>
    <message>
        <source>Highlights</source>
        <translation>ख़ास बातें</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>जानकारी</translation>
    </message>
    <message>
        <source>Questions and answers</source>
        <translation>सवाल-जवाब</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>नाम</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>फ़ोन</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>जन्मदिन</translation>
    </message>
    <message>
        <source>Pick a date</source>
        <translation>तारीख़ चुनें</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>ईमेल</translation>
    </message>
    <message>
        <source>The address you sign in with</source>
        <translation>साइन इन के लिए आपका पता</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>देश</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>सेव करें</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>बदलाव छोड़ें</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>सेव हो गया</translation>
    </message>
    <message>
        <source>With us since %1</source>
        <translation>%1 से हमारे साथ</translation>
    </message>
    <message>
        <source>Newsletters</source>
        <translation>न्यूज़लेटर</translation>
    </message>
    <message>
        <source>By email</source>
        <translation>ईमेल से</translation>
    </message>
    <message>
        <source>New pieces and offers, to %1</source>
        <translation>नए पीस और ऑफ़र, %1 पर</translation>
    </message>
    <message>
        <source>By text message</source>
        <translation>SMS से</translation>
    </message>
    <message>
        <source>Needs your phone number above</source>
        <translation>ऊपर आपका फ़ोन नंबर चाहिए</translation>
    </message>
    <message>
        <source>Sign in to see your profile</source>
        <translation>अपनी प्रोफ़ाइल देखने के लिए साइन इन करें</translation>
    </message>
    <message>
        <source>Your name, your phone number and what we may send you.</source>
        <translation>आपका नाम, फ़ोन नंबर और हम आपको क्या भेज सकते हैं।</translation>
    </message>
    <message>
        <source>Discover</source>
        <comment>home.promo.button</comment>
        <translation>देखें</translation>
    </message>
    <message>
        <source>Look around a little, and you find here what goes with it.</source>
        <translation>थोड़ा घूमकर देखें, उससे मेल खाते पीस यहाँ मिलेंगे।</translation>
    </message>
    <message>
        <source>Recently viewed</source>
        <translation>हाल में देखे गए</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>सब हटाएँ</translation>
    </message>
    <message>
        <source>No footprints yet</source>
        <translation>अभी कुछ देखा नहीं गया</translation>
    </message>
    <message>
        <source>The pieces you look at gather here, so that you find back to them.</source>
        <translation>आपके देखे हुए पीस यहाँ जमा होते हैं, ताकि उन तक लौटना आसान हो।</translation>
    </message>
    <message>
        <source>Sign in, and we email you once it is back.</source>
        <translation>साइन इन करें, आते ही हम ईमेल करेंगे।</translation>
    </message>
    <message>
        <source>The email goes to %1. Press again if you no longer want it.</source>
        <translation>ईमेल %1 पर आएगा। अब नहीं चाहिए तो फिर दबाएँ।</translation>
    </message>
    <message>
        <source>The email goes to %1.</source>
        <translation>ईमेल %1 पर आएगा।</translation>
    </message>
    <message>
        <source>Enlarge picture %L1</source>
        <translation>तस्वीर %L1 बड़ी करें</translation>
    </message>
    <message numerus="yes">
        <source>%Ln results for “%1”</source>
        <translation>
            <numerusform>“%1” के लिए %Ln नतीजा</numerusform>
            <numerusform>“%1” के लिए %Ln नतीजे</numerusform>
        </translation>
    </message>
    <message>
        <source>What are you looking for?</source>
        <translation>क्या ढूँढ़ना है?</translation>
    </message>
    <message>
        <source>No results for “%1”</source>
        <translation>“%1” के लिए कोई नतीजा नहीं</translation>
    </message>
    <message>
        <source>Check the spelling, try a broader word, or browse New In.</source>
        <translation>स्पेलिंग देखें, कोई आम शब्द आज़माएँ, या “नया आया” देखें।</translation>
    </message>
    <message>
        <source>Nothing matches these filters</source>
        <translation>इन फ़िल्टर से कुछ नहीं मिला</translation>
    </message>
    <message>
        <source>Remove a filter or two to see more of “%1”</source>
        <translation>“%1” के और नतीजों के लिए एक-दो फ़िल्टर हटाएँ</translation>
    </message>
    <message>
        <source>Sign out?</source>
        <translation>साइन आउट करें?</translation>
    </message>
    <message>
        <source>Your cart and wishlist stay on this Mac. Orders and membership are available again after you sign back in.</source>
        <translation>आपका कार्ट और विशलिस्ट इस कंप्यूटर पर रहेंगे। ऑर्डर और मेंबरशिप फिर साइन इन करने पर मिलेंगे।</translation>
    </message>
    <message>
        <source>Size table</source>
        <translation>साइज़ चार्ट</translation>
    </message>
    <message>
        <source>Unit of sizes</source>
        <translation>साइज़ की इकाई</translation>
    </message>
    <message>
        <source>Sort: %1</source>
        <translation>क्रम: %1</translation>
    </message>
    <message>
        <source>Tools</source>
        <comment>tools.title</comment>
        <translation>टूल</translation>
    </message>
    <message>
        <source>There are no tools at the moment.</source>
        <translation>अभी कोई टूल नहीं है।</translation>
    </message>
    <message>
        <source>Package or order number</source>
        <translation>पार्सल या ऑर्डर नंबर</translation>
    </message>
    <message>
        <source>It stands in the e-mail that told you of the shipment.</source>
        <translation>यह शिपिंग की ख़बर वाले ईमेल में लिखा है।</translation>
    </message>
    <message>
        <source>We don&apos;t know this number. Check it, or try again tomorrow: a new package can take a day to be known.</source>
        <translation>यह नंबर हमें नहीं मिला। इसे जाँचें या कल फिर कोशिश करें: नए पार्सल को दर्ज होने में एक दिन लग सकता है।</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>ट्रैक करें</translation>
    </message>
    <message>
        <source>This page isn&apos;t available</source>
        <translation>यह पेज उपलब्ध नहीं है</translation>
    </message>
    <message>
        <source>It may have moved, or come with another version.</source>
        <translation>हो सकता है यह कहीं और चला गया हो, या किसी और वर्शन में आए।</translation>
    </message>
    <message>
        <source>Press the heart on a piece and it waits for you here. We watch its price, too.</source>
        <translation>पीस पर बने दिल को दबाएँ, वह यहाँ आपका इंतज़ार करेगा। हम उसके दाम पर भी नज़र रखते हैं।</translation>
    </message>
    <message>
        <source>Your account: %1</source>
        <translation>आपका अकाउंट: %1</translation>
    </message>
    <message>
        <source>Looking for your account…</source>
        <translation>आपका अकाउंट ढूँढ़ा जा रहा है…</translation>
    </message>
    <message>
        <source>Nobody is signed in</source>
        <translation>किसी ने साइन इन नहीं किया है</translation>
    </message>
    <message>
        <source>Orders, alerts and membership need an account. Browsing and buying do not.</source>
        <translation>ऑर्डर, अलर्ट और मेंबरशिप के लिए अकाउंट चाहिए। देखने और ख़रीदने के लिए नहीं।</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>रूप-रंग</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>रंग</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>डेस्कटॉप जैसा</translation>
    </message>
    <message>
        <source>Follows the desktop between light and dark</source>
        <translation>हल्के और गहरे में डेस्कटॉप के साथ चलता है</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>हल्का</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>गहरा</translation>
    </message>
    <message>
        <source>The desktop&apos;s window frame</source>
        <translation>डेस्कटॉप का विंडो फ़्रेम</translation>
    </message>
    <message>
        <source>A title bar above the tabs, as other windows have it</source>
        <translation>टैब के ऊपर टाइटल बार, जैसा दूसरी विंडो में होता है</translation>
    </message>
    <message>
        <source>File</source>
        <translation>फ़ाइल</translation>
    </message>
    <message>
        <source>View</source>
        <translation>व्यू</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>जाएँ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>मदद</translation>
    </message>
    <message>
        <source>What is said</source>
        <translation>कैप्शन</translation>
    </message>
    <message>
        <source>Say what you are looking for, or what it is for.</source>
        <translation>बताएँ कि क्या ढूँढ़ना है, या किस मौके के लिए।</translation>
    </message>
    <message>
        <source>Cancel the call</source>
        <translation>कॉल रद्द करें</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>चैट</translation>
    </message>
    <message>
        <source>Go on in the chat, to write as well</source>
        <translation>चैट में जारी रखें, ताकि लिख भी सकें</translation>
    </message>
    <message>
        <source>Call with %1, %2</source>
        <translation>%1 के साथ कॉल, %2</translation>
    </message>
    <message>
        <source>Duration of the call: %1</source>
        <translation>कॉल की अवधि: %1</translation>
    </message>
    <message>
        <source>Show in the chat</source>
        <translation>चैट में दिखाएँ</translation>
    </message>
    <message>
        <source>Make it small</source>
        <translation>छोटा करें</translation>
    </message>
    <message>
        <source>Close, and go on in the chat</source>
        <translation>बंद करके चैट में जारी रखें</translation>
    </message>
    <message>
        <source>End the call and close</source>
        <translation>कॉल ख़त्म करके बंद करें</translation>
    </message>
    <message>
        <source>Only the picture</source>
        <translation>सिर्फ़ तस्वीर</translation>
    </message>
    <message>
        <source>Make it large</source>
        <translation>बड़ा करें</translation>
    </message>
    <message>
        <source>Show the call with %1</source>
        <translation>%1 के साथ कॉल दिखाएँ</translation>
    </message>
    <message>
        <source>Call with %1 – LOOMSTREET</source>
        <translation>%1 के साथ कॉल – LOOMSTREET</translation>
    </message>
    <message>
        <source>Expand to a Full Page</source>
        <translation>पूरे पेज पर फैलाएँ</translation>
    </message>
    <message>
        <source>Track it any time under Orders.</source>
        <translation>इसे “ऑर्डर” में कभी भी ट्रैक करें।</translation>
    </message>
    <message>
        <source>Reload This Page</source>
        <translation>यह पेज फिर लोड करें</translation>
    </message>
    <message>
        <source>Secure checkout on Shopify  ·  Your cart stays as it is</source>
        <translation>Shopify पर सुरक्षित चेकआउट  ·  आपका कार्ट ऐसा ही रहेगा</translation>
    </message>
    <message>
        <source>A link of this page leads out of the checkout, to %1.</source>
        <translation>इस पेज का एक लिंक चेकआउट से बाहर %1 पर ले जाता है।</translation>
    </message>
    <message>
        <source>Open in Browser</source>
        <translation>ब्राउज़र में खोलें</translation>
    </message>
    <message>
        <source>Checkout can&apos;t be shown here</source>
        <translation>चेकआउट यहाँ नहीं दिखाया जा सकता</translation>
    </message>
    <message>
        <source>Continue in Browser</source>
        <translation>ब्राउज़र में जारी रखें</translation>
    </message>
    <message>
        <source>LOOMSTREET isn&apos;t configured</source>
        <translation>LOOMSTREET कॉन्फ़िगर नहीं है</translation>
    </message>
    <message>
        <source>Run scripts/sync-secrets.sh in the project folder, then build again.</source>
        <translation>प्रोजेक्ट फ़ोल्डर में scripts/sync-secrets.sh चलाएँ, फिर दोबारा बिल्ड करें।</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>ऐप बंद करें</translation>
    </message>
    <message>
        <source>Footprints</source>
        <translation>देखे हुए पीस</translation>
    </message>
    <message>
        <source>General</source>
        <translation>सामान्य</translation>
    </message>
    <message>
        <source>Country and currency</source>
        <translation>देश और मुद्रा</translation>
    </message>
    <message>
        <source>Language of the shop</source>
        <translation>स्टोर की भाषा</translation>
    </message>
    <message>
        <source>Open pieces beside the grid</source>
        <translation>पीस को सूची के बगल में खोलें</translation>
    </message>
    <message>
        <source>In wide windows a piece is shown next to where it was found</source>
        <translation>चौड़ी विंडो में पीस वहीं बगल में दिखता है जहाँ वह मिला</translation>
    </message>
    <message>
        <source>Sizes in</source>
        <translation>नाप की इकाई</translation>
    </message>
    <message>
        <source>Centimetres and kilograms</source>
        <translation>सेंटीमीटर और किलोग्राम</translation>
    </message>
    <message>
        <source>Inches and pounds</source>
        <translation>इंच और पाउंड</translation>
    </message>
    <message>
        <source>LOOMSTREET %1</source>
        <translation>LOOMSTREET %1</translation>
    </message>
    <message>
        <source>Untitled page</source>
        <translation>बिना नाम का पेज</translation>
    </message>
    <message>
        <source>Pause slideshow</source>
        <translation>स्लाइड शो रोकें</translation>
    </message>
    <message>
        <source>Play slideshow</source>
        <translation>स्लाइड शो चलाएँ</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>स्पेस</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>ज़ूम आउट करें</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>ज़ूम इन करें</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>This picture couldn&apos;t be loaded</source>
        <translation>यह तस्वीर लोड नहीं हुई</translation>
    </message>
    <message>
        <source>%1 – LOOMSTREET</source>
        <translation>%1 – LOOMSTREET</translation>
    </message>
    <message>
        <source>Market and language: %1, %2</source>
        <translation>देश और भाषा: %1, %2</translation>
    </message>
    <message>
        <source>Market and language</source>
        <translation>देश और भाषा</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>भाषा</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>भाषा खोजें</translation>
    </message>
    <message>
        <source>Search countries and currencies</source>
        <translation>देश और मुद्रा खोजें</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>भाषाएँ</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>देश</translation>
    </message>
    <message>
        <source>No language matches “%1”</source>
        <translation>“%1” से मेल खाती कोई भाषा नहीं</translation>
    </message>
    <message>
        <source>No country matches “%1”</source>
        <translation>“%1” से मेल खाता कोई देश नहीं</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
    <message>
        <source>In the window</source>
        <translation>विंडो में</translation>
    </message>
    <message>
        <source>A banner at its top, for a few seconds.</source>
        <translation>ऊपर एक बैनर, कुछ सेकंड के लिए।</translation>
    </message>
    <message>
        <source>On the desktop</source>
        <translation>डेस्कटॉप पर</translation>
    </message>
    <message>
        <source>Where your desktop shows what applications tell, also while no window is open.</source>
        <translation>जहाँ आपका डेस्कटॉप ऐप की सूचनाएँ दिखाता है, कोई विंडो खुली न हो तब भी।</translation>
    </message>
    <message>
        <source>With a sound</source>
        <translation>आवाज़ के साथ</translation>
    </message>
    <message>
        <source>Count on the application&apos;s icon</source>
        <translation>ऐप के आइकन पर गिनती</translation>
    </message>
    <message>
        <source>How much of it you have not read.</source>
        <translation>कितना अभी पढ़ा नहीं गया।</translation>
    </message>
    <message>
        <source>Show an example</source>
        <translation>उदाहरण दिखाएँ</translation>
    </message>
    <message>
        <source>What about</source>
        <translation>किस बारे में</translation>
    </message>
    <message>
        <source>Not recommended any more on this computer.</source>
        <translation>इस कंप्यूटर पर अब नहीं सुझाया जाएगा।</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>साइड पैनल</translation>
    </message>
    <message>
        <source>Open in new tab</source>
        <translation>नए टैब में खोलें</translation>
    </message>
    <message>
        <source>Close Side Panel</source>
        <translation>साइड पैनल बंद करें</translation>
    </message>
    <message>
        <source>Width of the side panel</source>
        <translation>साइड पैनल की चौड़ाई</translation>
    </message>
    <message>
        <source>Help the store choose what to show</source>
        <translation>क्या दिखाना है, यह चुनने में स्टोर की मदद करें</translation>
    </message>
    <message>
        <source>Tells it which pages are opened, which pieces are looked at, put in the bag and bought, and when the application ended unexpectedly, without your name. Off, only what is essential is sent.</source>
        <translation>इससे स्टोर को पता चलता है कि कौन से पेज और पीस देखे, कार्ट में रखे और ख़रीदे गए, और ऐप कब अचानक बंद हुआ, आपके नाम के बिना। बंद रखने पर सिर्फ़ ज़रूरी बातें भेजी जाती हैं।</translation>
    </message>
    <message>
        <source>Either way</source>
        <translation>दोनों ही हाल में</translation>
    </message>
    <message>
        <source>Essential is what you ask for</source>
        <translation>ज़रूरी वही है जो आप माँगते हैं</translation>
    </message>
    <message>
        <source>The pages you open, your searches, your bag and your orders have to reach the store.</source>
        <translation>जो पेज आप खोलते हैं, आपकी खोजें, कार्ट और ऑर्डर, इन्हें स्टोर तक पहुँचना ही होता है।</translation>
    </message>
    <message>
        <source>What you keep stays on this computer</source>
        <translation>आपका सहेजा हुआ इसी कंप्यूटर पर रहता है</translation>
    </message>
    <message>
        <source>Your wishlist, what you viewed and what you searched for, until you clear it.</source>
        <translation>आपकी विशलिस्ट, जो देखा और जो खोजा, जब तक आप उसे साफ़ न करें।</translation>
    </message>
    <message>
        <source>Your sign-in lies in the keyring</source>
        <translation>आपका साइन-इन कीरिंग में रहता है</translation>
    </message>
    <message>
        <source>Where there is none, in a file that only you can read. It ends after 60 days, and whenever you sign out.</source>
        <translation>कीरिंग न हो, तो ऐसी फ़ाइल में जिसे सिर्फ़ आप पढ़ सकते हैं। यह 60 दिन बाद, और हर साइन आउट पर ख़त्म होता है।</translation>
    </message>
    <message>
        <source>Screenshot saved</source>
        <translation>स्क्रीनशॉट सेव हो गया</translation>
    </message>
    <message>
        <source>The screenshot couldn&apos;t be saved</source>
        <translation>स्क्रीनशॉट सेव नहीं हुआ</translation>
    </message>
    <message>
        <source>Check that there is room in your Pictures folder.</source>
        <translation>देखें कि आपके तस्वीरों वाले फ़ोल्डर में जगह है।</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>फ़ोल्डर दिखाएँ</translation>
    </message>
    <message>
        <source>Search, or paste a link</source>
        <translation>खोजें, या लिंक पेस्ट करें</translation>
    </message>
    <message>
        <source>Search by Image…</source>
        <translation>तस्वीर से खोजें…</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>आवाज़</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>अपडेट</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>सेटिंग</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>सेक्शन</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>%1 से जारी रखें</translation>
    </message>
    <message>
        <source>Signing you in…</source>
        <translation>साइन इन हो रहा है…</translation>
    </message>
    <message>
        <source>%1 opens in your browser. Sign in there, and you are signed in here.</source>
        <translation>%1 आपके ब्राउज़र में खुलेगा। वहाँ साइन इन करें, यहाँ अपने-आप साइन इन हो जाएगा।</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>कॉपी हो गया</translation>
    </message>
    <message>
        <source>Copy address</source>
        <translation>पता कॉपी करें</translation>
    </message>
    <message>
        <source>For a browser that did not open by itself</source>
        <translation>ब्राउज़र अपने-आप न खुले, तो उसके लिए</translation>
    </message>
    <message>
        <source>Nothing happened here?</source>
        <translation>यहाँ कुछ नहीं हुआ?</translation>
    </message>
    <message>
        <source>Paste the link your browser ended with</source>
        <translation>ब्राउज़र में आख़िर में मिला लिंक पेस्ट करें</translation>
    </message>
    <message>
        <source>It begins with “wrenfieldstore://”. Some browsers show it in the address bar.</source>
        <translation>यह “wrenfieldstore://” से शुरू होता है। कुछ ब्राउज़र इसे एड्रेस बार में दिखाते हैं।</translation>
    </message>
    <message>
        <source>Finish signing in</source>
        <translation>साइन इन पूरा करें</translation>
    </message>
    <message>
        <source>Create your account</source>
        <translation>अपना अकाउंट बनाएँ</translation>
    </message>
    <message>
        <source>Sign in to your account</source>
        <translation>अपने अकाउंट में साइन इन करें</translation>
    </message>
    <message>
        <source>Ways to sign in</source>
        <translation>साइन इन के तरीके</translation>
    </message>
    <message>
        <source>Email code</source>
        <translation>ईमेल कोड</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>पासवर्ड</translation>
    </message>
    <message>
        <source>We sent a code to %1. It can take a minute to arrive.</source>
        <translation>हमने %1 पर कोड भेजा है। आने में एक मिनट लग सकता है।</translation>
    </message>
    <message>
        <source>We email you a code first, to be sure that the address is yours.</source>
        <translation>पता आपका ही है, यह पक्का करने के लिए हम पहले ईमेल पर कोड भेजते हैं।</translation>
    </message>
    <message>
        <source>We email you a code to sign in with. You need no password.</source>
        <translation>साइन इन के लिए हम ईमेल पर कोड भेजते हैं। पासवर्ड की ज़रूरत नहीं।</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>पुष्टि का कोड</translation>
    </message>
    <message>
        <source>Send again in %L1 s</source>
        <translation>%L1 सेकंड में फिर भेजें</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>फिर भेजें</translation>
    </message>
    <message>
        <source>Send the code again</source>
        <translation>कोड फिर भेजें</translation>
    </message>
    <message>
        <source>Password (6 or more characters)</source>
        <translation>पासवर्ड (6 या ज़्यादा अक्षर)</translation>
    </message>
    <message>
        <source>Name (optional)</source>
        <translation>नाम (वैकल्पिक)</translation>
    </message>
    <message>
        <source>Forgot password? Sign in with an email code instead</source>
        <translation>पासवर्ड याद नहीं? ईमेल कोड से साइन इन करें</translation>
    </message>
    <message>
        <source>Email me a code</source>
        <translation>मुझे कोड ईमेल करें</translation>
    </message>
    <message>
        <source>or continue with</source>
        <translation>या इससे जारी रखें</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>माइक्रोफ़ोन</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>आज़माएँ</translation>
    </message>
    <message>
        <source>Stop listening to the microphone</source>
        <translation>माइक्रोफ़ोन सुनना रोकें</translation>
    </message>
    <message>
        <source>Try the microphone</source>
        <translation>माइक्रोफ़ोन आज़माएँ</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>आवाज़ का स्तर</translation>
    </message>
    <message>
        <source>It is in use for the call.</source>
        <translation>यह कॉल में इस्तेमाल हो रहा है।</translation>
    </message>
    <message>
        <source>Say something: the bar follows your voice. Nothing leaves this computer.</source>
        <translation>कुछ बोलें: पट्टी आपकी आवाज़ के साथ चलती है। इस कंप्यूटर से बाहर कुछ नहीं जाता।</translation>
    </message>
    <message>
        <source>Shows how loud you are. Nothing leaves this computer.</source>
        <translation>दिखाता है कि आपकी आवाज़ कितनी तेज़ है। इस कंप्यूटर से बाहर कुछ नहीं जाता।</translation>
    </message>
    <message>
        <source>Loudspeaker</source>
        <translation>स्पीकर</translation>
    </message>
    <message>
        <source>%1 mutes the microphone from wherever you are, for as long as a call lasts.</source>
        <translation>कॉल चलने तक %1 कहीं से भी माइक्रोफ़ोन म्यूट कर देता है।</translation>
    </message>
    <message>
        <source>M mutes the microphone in the window of a call.</source>
        <translation>कॉल की विंडो में M से माइक्रोफ़ोन म्यूट होता है।</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>लिंक</translation>
    </message>
    <message>
        <source>Search for “%1”</source>
        <translation>“%1” खोजें</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>हाल की खोजें</translation>
    </message>
    <message>
        <source>Seen and saved</source>
        <translation>देखे और सेव किए गए</translation>
    </message>
    <message>
        <source>No piece comes to mind. Enter searches all of them.</source>
        <translation>कोई पीस नहीं मिला। Enter से सब में खोजें।</translation>
    </message>
    <message>
        <source>to choose</source>
        <translation>चुनने के लिए</translation>
    </message>
    <message>
        <source>to close</source>
        <translation>बंद करने के लिए</translation>
    </message>
    <message>
        <source>Enter</source>
        <translatorcomment>As in English.</translatorcomment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Remove “%1” from recent searches</source>
        <translation>“%1” को हाल की खोजों से हटाएँ</translation>
    </message>
    <message>
        <source>Picture: %1</source>
        <translation>तस्वीर: %1</translation>
    </message>
    <message>
        <source>Opens in the browser</source>
        <translation>ब्राउज़र में खुलता है</translation>
    </message>
    <message>
        <source>Write a message</source>
        <translation>मैसेज लिखें</translation>
    </message>
    <message>
        <source>Attach a picture or a PDF</source>
        <translation>तस्वीर या PDF लगाएँ</translation>
    </message>
    <message>
        <source>Pictures and PDF</source>
        <translation>तस्वीरें और PDF</translation>
    </message>
    <message>
        <source>Drop a picture or a PDF here</source>
        <translation>तस्वीर या PDF यहाँ छोड़ें</translation>
    </message>
    <message>
        <source>How can we help?</source>
        <translation>हम क्या मदद करें?</translation>
    </message>
    <message>
        <source>Ask about an order, a return or your size. Pictures help, too.</source>
        <translation>ऑर्डर, रिटर्न या अपने साइज़ के बारे में पूछें। तस्वीरें भी काम आती हैं।</translation>
    </message>
    <message>
        <source>Where is my order?</source>
        <translation>मेरा ऑर्डर कहाँ है?</translation>
    </message>
    <message>
        <source>I would like to return something</source>
        <translation>मुझे कुछ लौटाना है</translation>
    </message>
    <message>
        <source>Which size should I take?</source>
        <translation>कौन सा साइज़ लूँ?</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>लोड हो रहा है</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>%1 बंद करें</translation>
    </message>
    <message>
        <source>New Tab to the Right</source>
        <translation>दाईं ओर नया टैब</translation>
    </message>
    <message>
        <source>Unpin Tab</source>
        <translation>टैब अनपिन करें</translation>
    </message>
    <message>
        <source>Pin Tab</source>
        <translation>टैब पिन करें</translation>
    </message>
    <message>
        <source>Move Tab to New Window</source>
        <translation>टैब को नई विंडो में ले जाएँ</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>बंद टैब फिर खोलें</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>टैब बंद करें</translation>
    </message>
    <message>
        <source>Close Other Tabs</source>
        <translation>बाकी टैब बंद करें</translation>
    </message>
    <message>
        <source>Expand Sidebar</source>
        <translation>साइडबार फैलाएँ</translation>
    </message>
    <message>
        <source>Collapse Sidebar</source>
        <translation>साइडबार समेटें</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>टैब</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>नया टैब</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>वापस जाएँ</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>आगे जाएँ</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>मेन्यू</translation>
    </message>
    <message>
        <source>Removed from: %1</source>
        <translation>यहाँ से हटाया गया: %1</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>अपडेट करें</translation>
    </message>
    <message>
        <source>Last checked: %1</source>
        <translation>पिछली जाँच: %1</translation>
    </message>
    <message>
        <source>Not checked yet</source>
        <translation>अभी जाँचा नहीं गया</translation>
    </message>
    <message>
        <source>This copy of LOOMSTREET can&apos;t update itself.</source>
        <translation>LOOMSTREET की यह कॉपी ख़ुद को अपडेट नहीं कर सकती।</translation>
    </message>
    <message>
        <source>LOOMSTREET looks for new versions by itself.</source>
        <translation>LOOMSTREET नए वर्शन अपने-आप ढूँढ़ता है।</translation>
    </message>
    <message>
        <source>LOOMSTREET does not look for new versions by itself for now.</source>
        <translation>LOOMSTREET फ़िलहाल नए वर्शन अपने-आप नहीं ढूँढ़ता।</translation>
    </message>
    <message>
        <source>New versions come from where you have it from. You can still check here.</source>
        <translation>नए वर्शन वहीं से आते हैं जहाँ से ऐप लिया गया। फिर भी यहाँ जाँच सकते हैं।</translation>
    </message>
    <message>
        <source>When it starts and every six hours. What it finds is downloaded in the background and installed when you quit; where that cannot be, you are told.</source>
        <translation>शुरू होते समय और हर छह घंटे में। जो मिलता है वह बैकग्राउंड में डाउनलोड होता है और बंद करने पर इंस्टॉल होता है; जहाँ यह न हो सके, वहाँ आपको बताया जाता है।</translation>
    </message>
    <message>
        <source>The store has paused it. You can still check here.</source>
        <translation>स्टोर ने इसे रोक रखा है। फिर भी यहाँ जाँच सकते हैं।</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>अपडेट जाँचें…</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>वर्शन %1</translation>
    </message>
    <message>
        <source>What’s new</source>
        <translation>नया क्या है</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>यह वर्शन छोड़ें</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>छोटा करें</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>पहले जैसा करें</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>बड़ा करें</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>विंडो बंद करें</translation>
    </message>
    <message>
        <source>Secure connection to %1</source>
        <translation>%1 से सुरक्षित कनेक्शन</translation>
    </message>
    <message>
        <source>Connection is not secure</source>
        <translation>कनेक्शन सुरक्षित नहीं है</translation>
    </message>
    <message>
        <source>Your account was deleted.</source>
        <translation>आपका अकाउंट डिलीट हो गया।</translation>
    </message>
    <message>
        <source>You were signed out before your account could be deleted. Sign in again to delete it.</source>
        <translation>अकाउंट डिलीट होने से पहले ही साइन आउट हो गया। इसे डिलीट करने के लिए फिर साइन इन करें।</translation>
    </message>
    <message>
        <source>Shipping</source>
        <translation>शिपिंग</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>फ़्री</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>टैक्स</translation>
    </message>
    <message numerus="yes">
        <source>%Ln packages</source>
        <translation>
            <numerusform>%Ln पार्सल</numerusform>
            <numerusform>%Ln पार्सल</numerusform>
        </translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>कन्फ़र्म</translation>
    </message>
    <message>
        <source>Packed</source>
        <translation>पैक हो गया</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>रद्द</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>जारी है</translation>
    </message>
    <message>
        <source>Waiting for the carrier</source>
        <translation>कूरियर का इंतज़ार</translation>
    </message>
    <message>
        <source>Out for delivery</source>
        <translation>डिलीवरी के लिए निकला</translation>
    </message>
    <message>
        <source>Delivery problem</source>
        <translation>डिलीवरी में दिक्कत</translation>
    </message>
    <message>
        <source>Return requested</source>
        <translation>रिटर्न माँगा गया</translation>
    </message>
    <message>
        <source>Return approved</source>
        <translation>रिटर्न मंज़ूर</translation>
    </message>
    <message>
        <source>Refunded</source>
        <translation>रिफ़ंड हो गया</translation>
    </message>
    <message>
        <source>Return refused</source>
        <translation>रिटर्न नामंज़ूर</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 और %Ln अन्य</numerusform>
            <numerusform>%1 और %Ln अन्य</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use at most %Ln characters.</source>
        <translation>
            <numerusform>ज़्यादा से ज़्यादा %Ln अक्षर लिखें।</numerusform>
            <numerusform>ज़्यादा से ज़्यादा %Ln अक्षर लिखें।</numerusform>
        </translation>
    </message>
    <message>
        <source>Enter a phone number, such as %1.</source>
        <translation>फ़ोन नंबर डालें, जैसे %1।</translation>
    </message>
    <message>
        <source>Enter a date, such as %1.</source>
        <translation>तारीख़ डालें, जैसे %1।</translation>
    </message>
    <message>
        <source>Enter a date in the past.</source>
        <translation>बीती हुई तारीख़ डालें।</translation>
    </message>
    <message>
        <source>Something you entered was not accepted. Check it and try again.</source>
        <translation>डाली गई कोई जानकारी स्वीकार नहीं हुई। जाँचकर फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Enter a valid email address.</source>
        <translation>सही ईमेल पता डालें।</translation>
    </message>
    <message>
        <source>That code is wrong or has expired. Request a new one.</source>
        <translation>यह कोड ग़लत है या इसकी समय-सीमा ख़त्म हो गई। नया कोड मँगाएँ।</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a minute and try again.</source>
        <translation>बहुत ज़्यादा कोशिशें हुईं। एक मिनट रुककर फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>That email and password don&apos;t match. Try again or sign in with an email code.</source>
        <translation>ईमेल और पासवर्ड मेल नहीं खाते। फिर कोशिश करें या ईमेल कोड से साइन इन करें।</translation>
    </message>
    <message>
        <source>This sign-in method is not available yet.</source>
        <translation>साइन इन का यह तरीका अभी उपलब्ध नहीं है।</translation>
    </message>
    <message>
        <source>That account has no email address we can use. Try another method.</source>
        <translation>इस अकाउंट में हमारे काम का कोई ईमेल पता नहीं है। कोई और तरीका आज़माएँ।</translation>
    </message>
    <message>
        <source>Sign-in was cancelled.</source>
        <translation>साइन इन रद्द हो गया।</translation>
    </message>
    <message>
        <source>Sign-in failed. Try again.</source>
        <translation>साइन इन नहीं हुआ। फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Enter the six digits of the code.</source>
        <translation>कोड के छह अंक डालें।</translation>
    </message>
    <message>
        <source>Choose a password of 6 or more characters.</source>
        <translation>6 या ज़्यादा अक्षरों का पासवर्ड चुनें।</translation>
    </message>
    <message>
        <source>Enter your password. It has 6 or more characters.</source>
        <translation>अपना पासवर्ड डालें। इसमें 6 या ज़्यादा अक्षर हैं।</translation>
    </message>
    <message>
        <source>That is not the link your sign-in ended with. It begins with “wrenfieldstore://”.</source>
        <translation>साइन इन इस लिंक पर ख़त्म नहीं हुआ था। वह “wrenfieldstore://” से शुरू होता है।</translation>
    </message>
    <message>
        <source>LOOMSTREET Help Center</source>
        <translation>LOOMSTREET हेल्प सेंटर</translation>
    </message>
    <message>
        <source>Agreements</source>
        <translation>अनुबंध</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>नई विंडो</translation>
    </message>
    <message>
        <source>Pin or Unpin Tab</source>
        <translation>टैब पिन या अनपिन करें</translation>
    </message>
    <message>
        <source>Move Tab Back</source>
        <translation>टैब पीछे ले जाएँ</translation>
    </message>
    <message>
        <source>Move Tab Forward</source>
        <translation>टैब आगे ले जाएँ</translation>
    </message>
    <message>
        <source>Open Side Panel Product in Full Page</source>
        <translation>साइड पैनल का प्रॉडक्ट पूरे पेज में खोलें</translation>
    </message>
    <message>
        <source>Open Side Panel Product in New Tab</source>
        <translation>साइड पैनल का प्रॉडक्ट नए टैब में खोलें</translation>
    </message>
    <message>
        <source>Take a Screenshot</source>
        <translation>स्क्रीनशॉट लें</translation>
    </message>
    <message>
        <source>Mira</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>फ़ुल स्क्रीन</translation>
    </message>
    <message>
        <source>Go to Section Home</source>
        <translation>सेक्शन के होम पर जाएँ</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>अगला टैब</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>पिछला टैब</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>ख़ास चुने हुए</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>सबसे नए</translation>
    </message>
    <message>
        <source>Price: Low to High</source>
        <translation>दाम: कम से ज़्यादा</translation>
    </message>
    <message>
        <source>Price: High to Low</source>
        <translation>दाम: ज़्यादा से कम</translation>
    </message>
    <message>
        <source>Best Selling</source>
        <translation>सबसे ज़्यादा बिकने वाले</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>आज</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>कल</translation>
    </message>
    <message>
        <source>Women</source>
        <translation>महिलाएँ</translation>
    </message>
    <message>
        <source>Men</source>
        <translation>पुरुष</translation>
    </message>
    <message>
        <source>Luxury</source>
        <translation>लग्ज़री</translation>
    </message>
    <message>
        <source>Bags</source>
        <translation>बैग</translation>
    </message>
    <message>
        <source>Accessories</source>
        <translation>एक्सेसरीज़</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>%1 से</translation>
    </message>
    <message>
        <source>Up to %1</source>
        <translation>%1 तक</translation>
    </message>
    <message>
        <source>Final sale</source>
        <translation>फ़ाइनल सेल</translation>
    </message>
    <message>
        <source>New</source>
        <translation>नया</translation>
    </message>
    <message>
        <source>Only one left</source>
        <translation>सिर्फ़ एक बचा है</translation>
    </message>
    <message numerus="yes">
        <source>Only %Ln left</source>
        <translation>
            <numerusform>सिर्फ़ %Ln बचा है</numerusform>
            <numerusform>सिर्फ़ %Ln बचे हैं</numerusform>
        </translation>
    </message>
    <message>
        <source>Best Match</source>
        <translation>सबसे सटीक</translation>
    </message>
    <message>
        <source>This piece cannot be returned</source>
        <translation>यह पीस लौटाया नहीं जा सकता</translation>
    </message>
    <message>
        <source>Check size and colour before you order</source>
        <translation>ऑर्डर से पहले साइज़ और रंग जाँच लें</translation>
    </message>
    <message>
        <source>Made for you</source>
        <translation>आपके लिए बनाया गया</translation>
    </message>
    <message>
        <source>Goes back only if it arrives faulty</source>
        <translation>सिर्फ़ ख़राब आने पर ही लौटेगा</translation>
    </message>
    <message>
        <source>Made to order, so allow more time</source>
        <translation>ऑर्डर पर बनता है, इसलिए थोड़ा ज़्यादा समय लगेगा</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, with all it came in</source>
        <translation>30 दिन में, बिना इस्तेमाल के, साथ आई हर चीज़ समेत</translation>
    </message>
    <message>
        <source>Keep box, dust bag and papers</source>
        <translation>डिब्बा, डस्ट बैग और काग़ज़ संभालकर रखें</translation>
    </message>
    <message>
        <source>Within 30 days, soles unmarked, in their box</source>
        <translation>30 दिन में, साफ़ तले के साथ, अपने डिब्बे में</translation>
    </message>
    <message>
        <source>Try them on indoors first</source>
        <translation>पहले घर के अंदर पहनकर देखें</translation>
    </message>
    <message>
        <source>Within 30 days, unworn, tags on</source>
        <translation>30 दिन में, बिना पहने, टैग समेत</translation>
    </message>
    <message>
        <source>Choose a %1 first.</source>
        <translation>पहले यह चुनें: %1।</translation>
    </message>
    <message numerus="yes">
        <source>%Ln items in your cart</source>
        <translation>
            <numerusform>आपके कार्ट में %Ln पीस</numerusform>
            <numerusform>आपके कार्ट में %Ln पीस</numerusform>
        </translation>
    </message>
    <message>
        <source>Couldn&apos;t apply that code. Try again.</source>
        <translation>यह कोड नहीं लगा। फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>“%1” doesn&apos;t apply to the items in your cart.</source>
        <translation>“%1” आपके कार्ट के पीस पर लागू नहीं होता।</translation>
    </message>
    <message>
        <source>You&apos;ve unlocked FREE worldwide shipping</source>
        <translation>आपको दुनिया भर में फ़्री शिपिंग मिल गई</translation>
    </message>
    <message>
        <source>Add %1 more for FREE worldwide shipping</source>
        <translation>दुनिया भर में फ़्री शिपिंग के लिए %1 और जोड़ें</translation>
    </message>
    <message>
        <source>Order placed. It will show under Orders in a few minutes.</source>
        <translation>ऑर्डर हो गया। यह कुछ मिनटों में “ऑर्डर” में दिखेगा।</translation>
    </message>
    <message>
        <source>Order %1 placed. It will show under Orders in a few minutes.</source>
        <translation>ऑर्डर %1 हो गया। यह कुछ मिनटों में “ऑर्डर” में दिखेगा।</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pieces  ·  confirmation sent to your email</source>
        <translation>
            <numerusform>%Ln पीस  ·  पुष्टि आपके ईमेल पर भेजी गई</numerusform>
            <numerusform>%Ln पीस  ·  पुष्टि आपके ईमेल पर भेजी गई</numerusform>
        </translation>
    </message>
    <message>
        <source>The page took too long to load.</source>
        <translation>पेज लोड होने में बहुत समय लगा।</translation>
    </message>
    <message>
        <source>The page leads out of the checkout.</source>
        <translation>यह पेज चेकआउट से बाहर ले जाता है।</translation>
    </message>
    <message>
        <source>The page stopped working.</source>
        <translation>पेज ने काम करना बंद कर दिया।</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Try again.</source>
        <translation>चेकआउट शुरू नहीं हुआ। फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>%1 less now</source>
        <translation>अब %1 कम</translation>
    </message>
    <message>
        <source>work</source>
        <comment>reco.occasion.work</comment>
        <translation>ऑफ़िस</translation>
    </message>
    <message>
        <source>date night</source>
        <comment>reco.occasion.date</comment>
        <translation>डेट नाइट</translation>
    </message>
    <message>
        <source>parties</source>
        <comment>reco.occasion.party</comment>
        <translation>पार्टियों</translation>
    </message>
    <message>
        <source>weddings</source>
        <comment>reco.occasion.wedding</comment>
        <translation>शादियों</translation>
    </message>
    <message>
        <source>vacation</source>
        <comment>reco.occasion.vacation</comment>
        <translation>छुट्टियों</translation>
    </message>
    <message>
        <source>travel</source>
        <comment>reco.occasion.travel</comment>
        <translation>सफ़र</translation>
    </message>
    <message>
        <source>everyday</source>
        <comment>reco.occasion.everyday</comment>
        <translation>हर दिन</translation>
    </message>
    <message>
        <source>the weekend</source>
        <comment>reco.occasion.weekend</comment>
        <translation>वीकेंड</translation>
    </message>
    <message>
        <source>school</source>
        <comment>reco.occasion.school</comment>
        <translation>स्कूल</translation>
    </message>
    <message>
        <source>interviews</source>
        <comment>reco.occasion.interview</comment>
        <translation>इंटरव्यू</translation>
    </message>
    <message>
        <source>graduation</source>
        <comment>reco.occasion.graduation</comment>
        <translation>ग्रैजुएशन</translation>
    </message>
    <message>
        <source>festivals</source>
        <comment>reco.occasion.festival</comment>
        <translation>फ़ेस्टिवल</translation>
    </message>
    <message>
        <source>the beach</source>
        <comment>reco.occasion.beach</comment>
        <translation>समुद्र तट</translation>
    </message>
    <message>
        <source>a night out</source>
        <comment>reco.occasion.night-out</comment>
        <translation>नाइट आउट</translation>
    </message>
    <message>
        <source>brunch</source>
        <comment>reco.occasion.brunch</comment>
        <translation>ब्रंच</translation>
    </message>
    <message>
        <source>the gym</source>
        <comment>reco.occasion.gym</comment>
        <translation>जिम</translation>
    </message>
    <message>
        <source>formal events</source>
        <comment>reco.occasion.formal</comment>
        <translation>फ़ॉर्मल मौकों</translation>
    </message>
    <message>
        <source>New arrivals</source>
        <translation>नए आए पीस</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <translation>आपकी पसंद के हिसाब से</translation>
    </message>
    <message>
        <source>New this week</source>
        <translation>इस हफ़्ते नया</translation>
    </message>
    <message>
        <source>New this week</source>
        <comment>reco.reason.new_in</comment>
        <translation>इस हफ़्ते नया</translation>
    </message>
    <message>
        <source>Handpicked</source>
        <comment>reco.reason.handpicked</comment>
        <translation>ख़ास चुना हुआ</translation>
    </message>
    <message>
        <source>New this week · %1</source>
        <comment>reco.reason.new_prefix</comment>
        <translation>इस हफ़्ते नया · %1</translation>
    </message>
    <message>
        <source>Based on what you love</source>
        <comment>reco.reason.because_like.generic</comment>
        <translation>आपकी पसंद के हिसाब से</translation>
    </message>
    <message>
        <source>Loved by shoppers like you</source>
        <comment>reco.reason.similar_shoppers</comment>
        <translation>आप जैसे लोगों की पसंद</translation>
    </message>
    <message>
        <source>Based on what you&apos;ve been browsing</source>
        <comment>reco.reason.browsing</comment>
        <translation>आपके देखे हुए पीस के हिसाब से</translation>
    </message>
    <message>
        <source>Trending now</source>
        <comment>reco.reason.trending</comment>
        <translation>अभी ट्रेंड में</translation>
    </message>
    <message>
        <source>Matches your search for %1</source>
        <comment>reco.reason.matches_search</comment>
        <translation>आपकी खोज से मेल: %1</translation>
    </message>
    <message>
        <source>Because you love %1</source>
        <comment>reco.reason.because_like</comment>
        <translation>आपकी पसंद: %1</translation>
    </message>
    <message>
        <source>For %1</source>
        <comment>reco.reason.for_occasion</comment>
        <translation>%1 के लिए</translation>
    </message>
    <message>
        <source>%1 style pick</source>
        <comment>reco.reason.style_pick</comment>
        <translation>%1 स्टाइल में</translation>
    </message>
    <message>
        <source>sweet</source>
        <comment>reco.style.sweet</comment>
        <translation>स्वीट</translation>
    </message>
    <message>
        <source>vintage</source>
        <comment>reco.style.vintage</comment>
        <translation>विंटेज</translation>
    </message>
    <message>
        <source>elegant</source>
        <comment>reco.style.elegant</comment>
        <translation>एलिगेंट</translation>
    </message>
    <message>
        <source>minimal</source>
        <comment>reco.style.minimal</comment>
        <translation>मिनिमल</translation>
    </message>
    <message>
        <source>romantic</source>
        <comment>reco.style.romantic</comment>
        <translation>रोमांटिक</translation>
    </message>
    <message>
        <source>street</source>
        <comment>reco.style.street</comment>
        <translation>स्ट्रीट</translation>
    </message>
    <message>
        <source>gothic</source>
        <comment>reco.style.gothic</comment>
        <translation>गॉथिक</translation>
    </message>
    <message>
        <source>preppy</source>
        <comment>reco.style.preppy</comment>
        <translation>प्रेपी</translation>
    </message>
    <message>
        <source>French</source>
        <comment>reco.style.french</comment>
        <translation>फ़्रेंच</translation>
    </message>
    <message>
        <source>edgy</source>
        <comment>reco.style.edgy</comment>
        <translation>बोल्ड</translation>
    </message>
    <message>
        <source>punk</source>
        <comment>reco.style.punk</comment>
        <translation>पंक</translation>
    </message>
    <message>
        <source>coquette</source>
        <comment>reco.style.coquette</comment>
        <translation>कोकेट</translation>
    </message>
    <message>
        <source>casual</source>
        <comment>reco.style.casual</comment>
        <translation>कैज़ुअल</translation>
    </message>
    <message>
        <source>boho</source>
        <comment>reco.style.boho</comment>
        <translation>बोहो</translation>
    </message>
    <message>
        <source>festival</source>
        <comment>reco.style.festival</comment>
        <translation>फ़ेस्टिवल</translation>
    </message>
    <message>
        <source>classic</source>
        <comment>reco.style.classic</comment>
        <translation>क्लासिक</translation>
    </message>
    <message>
        <source>sporty</source>
        <comment>reco.style.sporty</comment>
        <translation>स्पोर्टी</translation>
    </message>
    <message>
        <source>chic</source>
        <comment>reco.style.chic</comment>
        <translation>शीक</translation>
    </message>
    <message>
        <source>grunge</source>
        <comment>reco.style.grunge</comment>
        <translation>ग्रंज</translation>
    </message>
    <message>
        <source>Korean</source>
        <comment>reco.style.korean</comment>
        <translation>कोरियन</translation>
    </message>
    <message>
        <source>Japanese</source>
        <comment>reco.style.japanese</comment>
        <translation>जापानी</translation>
    </message>
    <message>
        <source>new Chinese</source>
        <comment>reco.style.chinese</comment>
        <translation>न्यू चाइनीज़</translation>
    </message>
    <message>
        <source>old money</source>
        <comment>reco.style.old-money</comment>
        <translation>ओल्ड मनी</translation>
    </message>
    <message>
        <source>quiet luxury</source>
        <comment>reco.style.quiet-luxury</comment>
        <translation>क्वाइट लग्ज़री</translation>
    </message>
    <message>
        <source>dark academia</source>
        <comment>reco.style.dark-academia</comment>
        <translation>डार्क अकैडेमिया</translation>
    </message>
    <message>
        <source>balletcore</source>
        <comment>reco.style.balletcore</comment>
        <translation>बैलेकोर</translation>
    </message>
    <message>
        <source>cottagecore</source>
        <comment>reco.style.cottagecore</comment>
        <translation>कॉटेजकोर</translation>
    </message>
    <message>
        <source>sexy</source>
        <comment>reco.style.sexy</comment>
        <translation>सेक्सी</translation>
    </message>
    <message>
        <source>cute</source>
        <comment>reco.style.cute</comment>
        <translation>क्यूट</translation>
    </message>
    <message>
        <source>cool</source>
        <comment>reco.style.cool</comment>
        <translation>कूल</translation>
    </message>
    <message>
        <source>feminine</source>
        <comment>reco.style.feminine</comment>
        <translation>फ़ेमिनिन</translation>
    </message>
    <message>
        <source>androgynous</source>
        <comment>reco.style.androgynous</comment>
        <translation>एंड्रोजिनस</translation>
    </message>
    <message>
        <source>workwear</source>
        <comment>reco.style.workwear</comment>
        <translation>वर्कवियर</translation>
    </message>
    <message>
        <source>formal</source>
        <comment>reco.style.formal</comment>
        <translation>फ़ॉर्मल</translation>
    </message>
    <message>
        <source>glam</source>
        <comment>reco.style.glam</comment>
        <translation>ग्लैम</translation>
    </message>
    <message>
        <source>avant-garde</source>
        <comment>reco.style.avant-garde</comment>
        <translation>अवांगार्द</translation>
    </message>
    <message>
        <source>utility</source>
        <comment>reco.style.utility</comment>
        <translation>यूटिलिटी</translation>
    </message>
    <message>
        <source>western</source>
        <comment>reco.style.western</comment>
        <translation>वेस्टर्न</translation>
    </message>
    <message>
        <source>resort</source>
        <comment>reco.style.resort</comment>
        <translation>रिज़ॉर्ट</translation>
    </message>
    <message>
        <source>Y2K</source>
        <comment>reco.style.y2k</comment>
        <translation>Y2K</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>sidebar.home</comment>
        <translation>होम</translation>
    </message>
    <message>
        <source>Sale</source>
        <comment>sidebar.sale</comment>
        <translation>सेल</translation>
    </message>
    <message>
        <source>Inbox</source>
        <comment>sidebar.inbox</comment>
        <translation>इनबॉक्स</translation>
    </message>
    <message>
        <source>Starlook</source>
        <translation>Starlook</translation>
    </message>
    <message>
        <source>Too many attempts. Wait a moment and try again.</source>
        <translation>बहुत ज़्यादा कोशिशें हुईं। थोड़ा रुककर फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Your session has expired. Sign in again.</source>
        <translation>आपका सेशन ख़त्म हो गया। फिर साइन इन करें।</translation>
    </message>
    <message>
        <source>Enter your email address.</source>
        <translation>अपना ईमेल पता डालें।</translation>
    </message>
    <message>
        <source>Some of the details don&apos;t look right. Check them and try again.</source>
        <translation>कुछ जानकारी सही नहीं लगती। जाँचकर फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now. Try again shortly.</source>
        <translation>LOOMSTREET में अभी दिक्कत है। थोड़ी देर में फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>That didn&apos;t work. Try again.</source>
        <translation>यह नहीं हुआ। फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Something unexpected came back. Try again.</source>
        <translation>कुछ अनपेक्षित जवाब आया। फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET. Try again.</source>
        <translation>LOOMSTREET तक नहीं पहुँच पाए। फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>The app is missing its configuration.</source>
        <translation>ऐप का कॉन्फ़िगरेशन नहीं मिला।</translation>
    </message>
    <message>
        <source>The request timed out. Try again.</source>
        <translation>अनुरोध का समय ख़त्म हो गया। फिर कोशिश करें।</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more notifications are waiting in your inbox.</source>
        <translation>
            <numerusform>इनबॉक्स में %Ln और नोटिफ़िकेशन आपका इंतज़ार कर रहा है।</numerusform>
            <numerusform>इनबॉक्स में %Ln और नोटिफ़िकेशन आपका इंतज़ार कर रहे हैं।</numerusform>
        </translation>
    </message>
    <message>
        <source>System alerts</source>
        <translation>सिस्टम की सूचनाएँ</translation>
    </message>
    <message>
        <source>Account and service updates</source>
        <translation>अकाउंट और सेवा के अपडेट</translation>
    </message>
    <message>
        <source>Order updates</source>
        <translation>ऑर्डर अपडेट</translation>
    </message>
    <message>
        <source>Order confirmed, shipped and delivered</source>
        <translation>ऑर्डर कन्फ़र्म, शिप और डिलीवर होने पर</translation>
    </message>
    <message>
        <source>Refunds and returns</source>
        <translation>रिफ़ंड और रिटर्न</translation>
    </message>
    <message>
        <source>Refunds issued and return updates</source>
        <translation>दिए गए रिफ़ंड और रिटर्न के अपडेट</translation>
    </message>
    <message>
        <source>Customer service replies</source>
        <translation>कस्टमर सर्विस के जवाब</translation>
    </message>
    <message>
        <source>When customer service answers you</source>
        <translation>जब कस्टमर सर्विस आपको जवाब दे</translation>
    </message>
    <message>
        <source>Pieces you asked about are available again</source>
        <translation>जिन पीस के लिए अलर्ट है, वे फिर उपलब्ध हों</translation>
    </message>
    <message>
        <source>Saved or viewed pieces get cheaper</source>
        <translation>सेव किए या देखे हुए पीस सस्ते हों</translation>
    </message>
    <message>
        <source>Vessa activity</source>
        <translation>Vessa की गतिविधि</translation>
    </message>
    <message>
        <source>Likes, comments, new followers and messages</source>
        <translation>लाइक, कमेंट, नए फ़ॉलोअर और मैसेज</translation>
    </message>
    <message>
        <source>Tier changes, points and new coupons</source>
        <translation>टियर में बदलाव, पॉइंट और नए कूपन</translation>
    </message>
    <message>
        <source>Promotions and events</source>
        <translation>ऑफ़र और इवेंट</translation>
    </message>
    <message>
        <source>Sales, new drops and store events</source>
        <translation>सेल, नए ड्रॉप और स्टोर के इवेंट</translation>
    </message>
    <message>
        <source>Sent an attachment</source>
        <translation>अटैचमेंट भेजा गया</translation>
    </message>
    <message>
        <source>Order placed</source>
        <translation>ऑर्डर हो गया</translation>
    </message>
    <message>
        <source>Your order is confirmed. It will show under Orders in a few minutes.</source>
        <translation>आपका ऑर्डर कन्फ़र्म है। यह कुछ मिनटों में “ऑर्डर” में दिखेगा।</translation>
    </message>
    <message>
        <source>Order %1 is confirmed. It will show under Orders in a few minutes.</source>
        <translation>ऑर्डर %1 कन्फ़र्म है। यह कुछ मिनटों में “ऑर्डर” में दिखेगा।</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t update itself</source>
        <translation>LOOMSTREET ख़ुद को अपडेट नहीं कर पाया</translation>
    </message>
    <message>
        <source>Click Update at the top of the window to install the new version from the disk image.</source>
        <translation>डिस्क इमेज से नया वर्शन इंस्टॉल करने के लिए विंडो में ऊपर “अपडेट करें” पर क्लिक करें।</translation>
    </message>
    <message>
        <source>Notification preview</source>
        <translation>नोटिफ़िकेशन की झलक</translation>
    </message>
    <message>
        <source>New order updates and customer service replies will appear here.</source>
        <translation>ऑर्डर के नए अपडेट और कस्टमर सर्विस के जवाब यहाँ दिखेंगे।</translation>
    </message>
    <message>
        <source>Closet</source>
        <comment>tools.closet.title</comment>
        <translation>वॉर्डरोब</translation>
    </message>
    <message>
        <source>Everything you own, in one place</source>
        <comment>tools.closet.note</comment>
        <translation>आपके सारे कपड़े, एक जगह</translation>
    </message>
    <message>
        <source>Outfit studio</source>
        <comment>tools.studio.title</comment>
        <translation>आउटफ़िट स्टूडियो</translation>
    </message>
    <message>
        <source>Put pieces together and see them as one</source>
        <comment>tools.studio.note</comment>
        <translation>पीस साथ रखें और पूरा लुक देखें</translation>
    </message>
    <message>
        <source>Lookbook</source>
        <comment>tools.lookbook.title</comment>
        <translation>लुकबुक</translation>
    </message>
    <message>
        <source>The outfits you kept</source>
        <comment>tools.lookbook.note</comment>
        <translation>आपके सहेजे हुए आउटफ़िट</translation>
    </message>
    <message>
        <source>Outfit ideas</source>
        <comment>tools.outfitIdeas.title</comment>
        <translation>आउटफ़िट आइडिया</translation>
    </message>
    <message>
        <source>New ways to wear what is in your closet</source>
        <comment>tools.outfitIdeas.note</comment>
        <translation>वॉर्डरोब के कपड़े पहनने के नए तरीके</translation>
    </message>
    <message>
        <source>Size advice</source>
        <comment>tools.sizeAdvice.title</comment>
        <translation>साइज़ की सलाह</translation>
    </message>
    <message>
        <source>Your measurements, and the size that fits them</source>
        <comment>tools.sizeAdvice.note</comment>
        <translation>आपके नाप, और उन पर सही साइज़</translation>
    </message>
    <message>
        <source>Search by image</source>
        <comment>tools.imageSearch.title</comment>
        <translation>तस्वीर से खोज</translation>
    </message>
    <message>
        <source>Find a piece by a picture of it</source>
        <comment>tools.imageSearch.note</comment>
        <translation>तस्वीर से पीस ढूँढ़ें</translation>
    </message>
    <message>
        <source>Compare</source>
        <comment>tools.compare.title</comment>
        <translation>तुलना करें</translation>
    </message>
    <message>
        <source>Up to four pieces side by side</source>
        <comment>tools.compare.note</comment>
        <translation>चार पीस तक साथ-साथ</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>अपडेट जाँचे जा रहे हैं…</translation>
    </message>
    <message>
        <source>You&apos;re up to date</source>
        <translation>आपका वर्शन सबसे नया है</translation>
    </message>
    <message>
        <source>Downloading LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 डाउनलोड हो रहा है</translation>
    </message>
    <message>
        <source>Checking the download…</source>
        <translation>डाउनलोड जाँचा जा रहा है…</translation>
    </message>
    <message>
        <source>Installing LOOMSTREET %1</source>
        <translation>LOOMSTREET %1 इंस्टॉल हो रहा है</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates</source>
        <translation>अपडेट नहीं जाँचे जा सके</translation>
    </message>
    <message>
        <source>Couldn&apos;t download the update</source>
        <translation>अपडेट डाउनलोड नहीं हुआ</translation>
    </message>
    <message>
        <source>Ready to install</source>
        <translation>इंस्टॉल के लिए तैयार</translation>
    </message>
    <message>
        <source>Install the update</source>
        <translation>अपडेट इंस्टॉल करें</translation>
    </message>
    <message>
        <source>%1 is ready to install</source>
        <translation>%1 इंस्टॉल के लिए तैयार है</translation>
    </message>
    <message>
        <source>LOOMSTREET %1 is the newest version.</source>
        <translation>LOOMSTREET %1 सबसे नया वर्शन है।</translation>
    </message>
    <message>
        <source>LOOMSTREET closes, and the new version takes its place.</source>
        <translation>LOOMSTREET बंद होगा, और नया वर्शन उसकी जगह लेगा।</translation>
    </message>
    <message>
        <source>Downloaded. Relaunch to finish, or it installs the next time you quit.</source>
        <translation>डाउनलोड हो गया। पूरा करने के लिए फिर शुरू करें, वरना अगली बार बंद करने पर इंस्टॉल होगा।</translation>
    </message>
    <message>
        <source>In the window that just opened, drag LOOMSTREET onto Applications and choose Replace. Then open LOOMSTREET again.</source>
        <translation>अभी खुली विंडो में LOOMSTREET को “ऐप्लिकेशन” पर खींचें और “बदलें” चुनें। फिर LOOMSTREET दोबारा खोलें।</translation>
    </message>
    <message>
        <source>LOOMSTREET couldn&apos;t replace itself on this Mac. Install the new version from the disk image instead. It takes a few seconds.</source>
        <translation>LOOMSTREET इस कंप्यूटर पर ख़ुद को नहीं बदल पाया। नया वर्शन डिस्क इमेज से इंस्टॉल करें। कुछ ही सेकंड लगेंगे।</translation>
    </message>
    <message>
        <source>The version you have is no longer supported.</source>
        <translation>आपके पास जो वर्शन है, वह अब समर्थित नहीं है।</translation>
    </message>
    <message>
        <source>The update is downloaded. Relaunch LOOMSTREET to finish, or it installs the next time you quit.</source>
        <translation>अपडेट डाउनलोड हो गया। पूरा करने के लिए LOOMSTREET फिर शुरू करें, वरना अगली बार बंद करने पर इंस्टॉल होगा।</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates. Check your connection and try again.</source>
        <translation>अपडेट नहीं जाँचे जा सके। कनेक्शन देखकर फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>The download failed (HTTP %1).</source>
        <translation>डाउनलोड नहीं हुआ (HTTP %1)।</translation>
    </message>
    <message>
        <source>The download was incomplete or changed on the way. Try again.</source>
        <translation>डाउनलोड अधूरा रहा या रास्ते में बदल गया। फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>The downloaded file couldn&apos;t be read.</source>
        <translation>डाउनलोड की गई फ़ाइल पढ़ी नहीं जा सकी।</translation>
    </message>
    <message>
        <source>The download isn&apos;t signed by LOOMSTREET, so it wasn&apos;t opened.</source>
        <translation>डाउनलोड पर LOOMSTREET के हस्ताक्षर नहीं हैं, इसलिए उसे खोला नहीं गया।</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>डाउनलोड और इंस्टॉल करें</translation>
    </message>
    <message>
        <source>Relaunch to Update</source>
        <translation>अपडेट के लिए फिर शुरू करें</translation>
    </message>
    <message>
        <source>Open Disk Image</source>
        <translation>डिस्क इमेज खोलें</translation>
    </message>
    <message>
        <source>You appear to be offline.</source>
        <translation>लगता है आप ऑफ़लाइन हैं।</translation>
    </message>
    <message>
        <source>Mira took too long to respond.</source>
        <translation>Mira के जवाब में बहुत देर हो गई।</translation>
    </message>
    <message>
        <source>You&apos;re sending messages too quickly. Wait a moment first.</source>
        <translation>मैसेज बहुत जल्दी-जल्दी भेजे जा रहे हैं। पहले थोड़ा रुकें।</translation>
    </message>
    <message>
        <source>This message couldn&apos;t be sent as written.</source>
        <translation>यह मैसेज इस रूप में नहीं भेजा जा सका।</translation>
    </message>
    <message>
        <source>LOOMSTREET is having trouble right now.</source>
        <translation>LOOMSTREET में अभी दिक्कत है।</translation>
    </message>
    <message>
        <source>Couldn&apos;t reach LOOMSTREET.</source>
        <translation>LOOMSTREET तक नहीं पहुँच पाए।</translation>
    </message>
    <message>
        <source>Choose sizes for %1</source>
        <translation>%1 के लिए साइज़ चुनें</translation>
    </message>
    <message>
        <source>Sold out meanwhile and not added: %1</source>
        <translation>इस बीच सोल्ड आउट, नहीं जोड़ा गया: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t start checkout. Check your connection and try again.</source>
        <translation>चेकआउट शुरू नहीं हुआ। कनेक्शन देखकर फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>That height or weight doesn&apos;t look right. Check the numbers and the units.</source>
        <translation>लंबाई या वज़न सही नहीं लगता। संख्या और इकाई जाँचें।</translation>
    </message>
    <message>
        <source>One of these measurements doesn&apos;t look right. Check the number, or leave it empty.</source>
        <translation>इनमें से कोई नाप सही नहीं लगता। संख्या जाँचें, या उसे खाली छोड़ दें।</translation>
    </message>
    <message>
        <source>Loose</source>
        <translation>ढीला</translation>
    </message>
    <message>
        <source>Fitted</source>
        <translation>फ़िटेड</translation>
    </message>
    <message>
        <source>Regular</source>
        <translation>रेगुलर</translation>
    </message>
    <message>
        <source>Help me style this: %1</source>
        <translation>इसे कैसे स्टाइल करूँ: %1</translation>
    </message>
    <message>
        <source>This message has not been confirmed. You can try again.</source>
        <translation>इस मैसेज की पुष्टि नहीं हुई। फिर कोशिश कर सकते हैं।</translation>
    </message>
    <message>
        <source>Conversation is up to date</source>
        <translation>बातचीत अप टू डेट है</translation>
    </message>
    <message>
        <source>Mira is replying</source>
        <translation>Mira जवाब दे रही है</translation>
    </message>
    <message>
        <source>Mira is replying. You can send these in a moment.</source>
        <translation>Mira जवाब दे रही है। इन्हें थोड़ी देर में भेज सकते हैं।</translation>
    </message>
    <message>
        <source>Topics are saved on this Mac. Mira keeps your shared conversation memory.</source>
        <translation>विषय इस कंप्यूटर पर सेव रहते हैं। Mira को आपकी साझा बातचीत याद रहती है।</translation>
    </message>
    <message>
        <source>Help me find something</source>
        <translation>कुछ ढूँढ़ने में मेरी मदद करें</translation>
    </message>
    <message>
        <source>Style me from my closet</source>
        <translation>मेरे वॉर्डरोब से लुक बनाएँ</translation>
    </message>
    <message>
        <source>What to wear tonight</source>
        <translation>आज रात क्या पहनूँ</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °से.</translation>
    </message>
    <message>
        <source>LOOMSTREET may not see where you are. Type your city instead.</source>
        <translation>LOOMSTREET को आपकी लोकेशन देखने की अनुमति नहीं है। इसके बजाय अपना शहर लिखें।</translation>
    </message>
    <message>
        <source>Your location couldn&apos;t be found. Type your city instead.</source>
        <translation>आपकी लोकेशन नहीं मिली। इसके बजाय अपना शहर लिखें।</translation>
    </message>
    <message>
        <source>That city isn&apos;t known. Try a bigger one nearby.</source>
        <translation>यह शहर नहीं मिला। पास का कोई बड़ा शहर आज़माएँ।</translation>
    </message>
    <message>
        <source>Mira can&apos;t pick up right now. Try again in a moment.</source>
        <translation>Mira अभी कॉल नहीं ले सकती। थोड़ी देर में फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>Mira is on another call. Try again in a minute.</source>
        <translation>Mira दूसरी कॉल पर है। एक मिनट बाद फिर कोशिश करें।</translation>
    </message>
    <message>
        <source>The line hiccuped. Say that again?</source>
        <translation>लाइन ज़रा अटक गई। फिर से बताएँ?</translation>
    </message>
    <message>
        <source>The line dropped. Call again to keep talking.</source>
        <translation>लाइन कट गई। बात जारी रखने के लिए फिर कॉल करें।</translation>
    </message>
    <message>
        <source>Microphone access is off. Turn it on in System Settings › Privacy &amp; Security › Microphone, then call again.</source>
        <translation>माइक्रोफ़ोन की अनुमति बंद है। इसे सिस्टम सेटिंग › प्राइवेसी और सुरक्षा › माइक्रोफ़ोन में चालू करें, फिर कॉल करें।</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone. Check that one is connected, then call again.</source>
        <translation>माइक्रोफ़ोन शुरू नहीं हुआ। देखें कि वह जुड़ा है, फिर कॉल करें।</translation>
    </message>
    <message>
        <source>Mute the microphone during a call</source>
        <translation>कॉल के दौरान माइक्रोफ़ोन म्यूट करें</translation>
    </message>
    <message>
        <source>Added to your cart</source>
        <translation>आपके कार्ट में जुड़ गया</translation>
    </message>
    <message>
        <source>Added %1 to your cart</source>
        <translation>आपके कार्ट में जुड़ा: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t add it. Try from the product page.</source>
        <translation>जोड़ा नहीं जा सका। प्रॉडक्ट पेज से कोशिश करें।</translation>
    </message>
    <message>
        <source>Taking you there…</source>
        <translation>वहाँ ले चल रही हूँ…</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 खुल रहा है</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>सिस्टम डिफ़ॉल्ट</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>जुड़ा नहीं है</translation>
    </message>
    <message>
        <source>Outerwear</source>
        <translation>आउटरवियर</translation>
    </message>
    <message>
        <source>Tops</source>
        <translation>टॉपवियर</translation>
    </message>
    <message>
        <source>Bottoms</source>
        <translation>बॉटमवियर</translation>
    </message>
    <message>
        <source>Dresses</source>
        <translation>ड्रेस</translation>
    </message>
    <message>
        <source>Shoes</source>
        <translation>जूते</translation>
    </message>
    <message>
        <source>Extras</source>
        <translation>एक्स्ट्रा</translation>
    </message>
    <message>
        <source>Mild</source>
        <comment>weather.mild</comment>
        <translation>सुहाना</translation>
    </message>
    <message>
        <source>Sunny</source>
        <comment>weather.sunny</comment>
        <translation>धूप</translation>
    </message>
    <message>
        <source>Partly cloudy</source>
        <comment>weather.partlyCloudy</comment>
        <translation>कहीं-कहीं बादल</translation>
    </message>
    <message>
        <source>Overcast</source>
        <comment>weather.overcast</comment>
        <translation>बादल छाए</translation>
    </message>
    <message>
        <source>Foggy</source>
        <comment>weather.foggy</comment>
        <translation>कोहरा</translation>
    </message>
    <message>
        <source>Drizzly</source>
        <comment>weather.drizzle</comment>
        <translation>बूँदाबाँदी</translation>
    </message>
    <message>
        <source>Rainy</source>
        <comment>weather.rain</comment>
        <translation>बारिश</translation>
    </message>
    <message>
        <source>Snowy</source>
        <comment>weather.snow</comment>
        <translation>बर्फ़बारी</translation>
    </message>
    <message>
        <source>Showery</source>
        <comment>weather.showers</comment>
        <translation>बौछारें</translation>
    </message>
    <message>
        <source>Stormy</source>
        <comment>weather.storm</comment>
        <translation>गरज-चमक</translation>
    </message>
    <message>
        <source>This file is not there any more.</source>
        <translation>यह फ़ाइल अब यहाँ नहीं है।</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>यह फ़ाइल पढ़ी नहीं जा सकी।</translation>
    </message>
    <message>
        <source>This file is empty.</source>
        <translation>यह फ़ाइल खाली है।</translation>
    </message>
    <message>
        <source>This file is larger than 10 MB. Choose a smaller one.</source>
        <translation>यह फ़ाइल 10 MB से बड़ी है। छोटी फ़ाइल चुनें।</translation>
    </message>
    <message>
        <source>Only pictures and PDF files can be sent.</source>
        <translation>सिर्फ़ तस्वीरें और PDF फ़ाइलें भेजी जा सकती हैं।</translation>
    </message>
    <message>
        <source>This message may not have arrived.</source>
        <translation>हो सकता है यह मैसेज न पहुँचा हो।</translation>
    </message>
    <message>
        <source>Hidden</source>
        <comment>orders.hidden</comment>
        <translation>छिपे हुए</translation>
    </message>
    <message>
        <source>On the way</source>
        <comment>orders.filter</comment>
        <translation>रास्ते में</translation>
    </message>
    <message>
        <source>Delivered</source>
        <comment>orders.filter</comment>
        <translation>डिलीवर हो चुके</translation>
    </message>
    <message>
        <source>Write to Customer Service</source>
        <translation>कस्टमर सर्विस को लिखें</translation>
    </message>
    <message>
        <source>Conversation with Customer Service</source>
        <translation>कस्टमर सर्विस के साथ बातचीत</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
</TS>
