// The floor of a start: a window over the whole screen, one colour and a comb in its middle row, by
// which it is known that it is there.
#include <SDL.h>

int main(int /*pocet*/, char** /*slova*/) {
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    SDL_Rect kde;
    if (SDL_Init(SDL_INIT_VIDEO) != 0 || SDL_GetDisplayBounds(0, &kde) != 0) return 1;
    SDL_Window* okno = SDL_CreateWindow("Prázdné okno", 0, 0, kde.w, kde.h,
                                        SDL_WINDOW_HIDDEN | SDL_WINDOW_BORDERLESS);
    SDL_Surface* plocha = okno == nullptr ? nullptr : SDL_GetWindowSurface(okno);
    if (plocha == nullptr) return 1;
    SDL_FillRect(plocha, nullptr, SDL_MapRGB(plocha->format, 240, 230, 210));
    for (int x = 0; x < kde.w; x += 16) {
        const SDL_Rect zub{x, kde.h / 2, 8, 1};
        SDL_FillRect(plocha, &zub, 0);
    }
    SDL_ShowWindow(okno);
    SDL_UpdateWindowSurface(okno);
    SDL_Event e;
    while (SDL_WaitEvent(&e) != 0 && e.type != SDL_QUIT) SDL_UpdateWindowSurface(okno);
    SDL_Quit();
    return 0;
}
