#include "vellox/host/services/LateLibrary.h"

#include <dlfcn.h>

namespace vellox::host {

LateLibrary::LateLibrary(const char* fileName)
    : library_(dlopen(fileName, RTLD_LAZY | RTLD_LOCAL | RTLD_NODELETE)),
      isWhole_(library_ != nullptr) {}

LateLibrary::Found LateLibrary::find(const char* name) {
    void* function = library_ ? dlsym(library_, name) : nullptr;
    isWhole_ = isWhole_ && function;
    return Found(function);
}

} // namespace vellox::host
