#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace rysovna::testy {

/// What all threads of a process have had of the processor, ms.
inline double CasProcesoru(const std::string& pid) {
    double ns = 0;
    for (const auto& vlakno : std::filesystem::directory_iterator("/proc/" + pid + "/task")) {
        double sve = 0;
        std::ifstream(vlakno.path() / "schedstat") >> sve;
        ns += sve;
    }
    return ns / 1e6;
}

}  // namespace rysovna::testy
