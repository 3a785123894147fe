#include "platform/Host.h"

#include "base/Chyba.h"
#include "platform/Obrazovky.h"
#include "platform/PosixDisk.h"

namespace rysovna {

namespace {

Host* g_stroj = nullptr;

}  // namespace

Host::Host() : okna_(std::make_unique<Obrazovky>()), disk_(std::make_unique<PosixDisk>()) {}

Host::~Host() = default;

Disk& Host::Disk() {
    return *disk_;
}

Host& Stroj() {
    if (g_stroj == nullptr) Selhani("Program nemá stroj, na kterém běží");
    return *g_stroj;
}

HostNaDobu::HostNaDobu(Host& host) : drivejsi_(g_stroj) {
    g_stroj = &host;
}

HostNaDobu::~HostNaDobu() {
    g_stroj = drivejsi_;
}

}  // namespace rysovna
