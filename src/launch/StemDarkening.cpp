// Override of FreeType's stem darkening, which makes text too bold.
//
// Qt asks FreeType to darken the stems of CFF fonts, such as Debian's fonts-inter, and then applies
// a gamma to such text. White text of 12 px gets 50 % more ink than its outlines hold: regular
// looks medium, captions look like titles. Qt overrides the environment variable that FreeType
// offers, and a setting by hand would reach one thread only, since each has its own FreeType
// library.
//
// The program therefore defines the function that sets the property. The dynamic linker finds this
// definition first; Qt is told that darkening cannot be set, finds it off, and skips the gamma.
// Linked into the executable itself, because the linker drops an unreferenced object of a static
// library.
#include <cstring>
#include <dlfcn.h>

extern "C" {

/// FreeType's function, with its types spelled out: FT_Library, the names of module and property,
/// and a value whose type depends on the property. Any thread. Returns 0 or FreeType's error code.
__attribute__((visibility("default"))) int
FT_Property_Set(void* library, const char* module, const char* property, const void* value) {
    constexpr int kUnimplementedFeature = 7;
    if (std::strcmp(module, "cff") == 0 && std::strcmp(property, "no-stem-darkening") == 0)
        return kUnimplementedFeature;
    using Setter = int (*)(void*, const char*, const char*, const void*);
    static const auto next = reinterpret_cast<Setter>(dlsym(RTLD_NEXT, "FT_Property_Set"));
    return next != nullptr ? next(library, module, property, value) : kUnimplementedFeature;
}

} // extern "C"
