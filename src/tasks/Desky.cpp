#include "tasks/Desky.h"

#include "shell/MapaPoli.h"
#include "tasks/Troj1Form.h"

namespace rysovna {

std::shared_ptr<Form> VyrobDesku(int cisloUlohy) {
    switch (DeskaUlohy(cisloUlohy)) {
        case Deska::Troj1Form: return std::make_shared<Troj1Form>();
        default: return nullptr;
    }
}

}  // namespace rysovna
