// Keeps text at the weight of its outlines.
//
// The graphics library asks FreeType to darken the stems of CFF faces, of which Debian's
// fonts-inter is one, and then blends such text with a gamma as well. White text of 12 pixels gets
// half as much ink again as its outlines hold: regular reads as medium, and captions are as loud as
// titles. The environment variable that FreeType offers against it is overridden, and a setting by
// hand would reach one thread only, since each has a FreeType of its own.
//
// So the program defines the function that sets the property. The dynamic linker finds this
// definition before FreeType's; the library is told that the darkening can't be set, finds it off,
// and leaves out the gamma too. Links into the executable itself: an object of a static library
// that nothing refers to would be left out.
#include <cstring>
#include <dlfcn.h>

extern "C" {

/// FreeType's function, with its types written out: FT_Library, then a null-ended name each of a
/// module and of a property, and a value whose type goes with the property. Any thread. Returns 0
/// or FreeType's error code.
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
