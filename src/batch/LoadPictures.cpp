#include "batch/LoadPictures.h"

#include <dlfcn.h>

#include "plot/PicturesModule.h"
#include "recipes/RunError.h"

namespace vorlan {

std::unique_ptr<Pictures> loadPictures() {
    // Stays loaded: the toolkit cannot be unloaded. The program's own path of libraries tells where the file lies.
    void* const module = ::dlopen(kPicturesModule, RTLD_NOW | RTLD_LOCAL);
    void* const function = module != nullptr ? ::dlsym(module, kPicturesFunction) : nullptr;
    if (function == nullptr) {
        throw refusal(std::string("drawing is not installed: ") + ::dlerror());
    }
    return std::unique_ptr<Pictures>(reinterpret_cast<PicturesFunction>(function)());
}

}  // namespace vorlan
