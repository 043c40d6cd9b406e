// Holds the precompiled header that every folder of the library reuses.
