#pragma once

#include <cstddef>
#include <cstdint>

// What the page does for the program: written in the page's language, packaging/web/most.js, which
// the link puts in their places. Texts are UTF-8.

extern "C" {

/// Shows a rectangle of the picture: sirka by vyska pixels, 0xAABBGGRR each.
void stranka_ukaz(const std::uint32_t* body, int sirka, int vyska, int x, int y, int w, int h);
/// What the pointer looks like, by Kurzor.
void stranka_kurzor(int ktery);
/// Whether typed text is wanted, and where on the page's picture it goes, px of the picture.
void stranka_psani(int ano, int x, int y, int vyska);
/// Starts a sound (a file of samples); the one that was playing ends.
void stranka_zvuk(const char* jmeno, const char* data, std::size_t delka);
/// Why no sound would be heard; 0: it would.
int stranka_neni_zvuk();
/// Size of the screen, px.
int stranka_sirka_obrazovky();
int stranka_vyska_obrazovky();
/// What a screen reader is to say.
void stranka_rekni(const char* text);
/// The browser saves a document under this name.
void stranka_stahni(const char* jmeno, const char* data, std::size_t delka);
/// A message beside the picture, where none can be drawn.
void stranka_zprava(const char* titul, const char* text);
/// Bytes that the browser still lets the page keep.
double stranka_volno();

/// Begins to keep files, all of them or none: each call of pridej adds one, or (data null) takes
/// one away. stav: what became of it.
void stranka_transakce_pridej(const char* cesta, const char* data, std::size_t delka);
void stranka_transakce_zacni();
/// 0: not done yet, 1: kept, 2: no room, 3: the browser does not allow it, 4: another fault.
int stranka_transakce_stav();

/// Keeps a small file at once, or takes it away (data null). 1, 2, 3 or 4 as above.
int stranka_hned(const char* cesta, const char* data, std::size_t delka);

}  // extern "C"
