// Carries the precompiled headers; a target needs one source file to have them.
