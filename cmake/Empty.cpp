// Carries the precompiled header that the libraries below ui/ share.
