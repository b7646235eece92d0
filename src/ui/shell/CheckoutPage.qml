import Loomstreet.Web

// The view of a checkout. Loaded on demand, because it brings the browser engine with it.
CheckoutWebView {}
