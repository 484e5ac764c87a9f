// The calls of object_fuzzer, and decks that open and close.

#define VELLOX_FUZZ_DECKS
#include "fuzz/object_fuzzer.cpp"
