#pragma once

struct SDL_Window;

namespace rysovna {

// What the window needs of X itself. Elsewhere than under X neither does anything. Nothing is
// linked: the routines are looked up where the video driver has them loaded already.

/// Whether somebody would answer the wish for full screen. True elsewhere than under X.
[[nodiscard]] bool MaSpravceOken(SDL_Window* okno);

/// From now on a message that reaches X after its window is gone is no fault. The library wakes its
/// own wait by such messages, over a connection of their own, so that one may still be on the way
/// when the window is destroyed; X's answer to it would end the process with status 1. To be
/// called before the library opens the display: it puts back at the end what it found, and the
/// answer may come as late as that.
void SnesPozdniZpravy();

}  // namespace rysovna
