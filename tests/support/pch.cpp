// Holds the precompiled header that every test executable reuses.
