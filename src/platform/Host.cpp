#include "platform/Host.h"

#include "platform/Obrazovky.h"
#include "platform/Stroj.h"

namespace rysovna {

Host::Host() : okna_(std::make_unique<Obrazovky>(*this)), disk_(std::make_unique<DiskStroje>()) {}

Host::~Host() = default;

Disk& Host::Disk() {
    return *disk_;
}

}  // namespace rysovna
