// The deafening "noise" of dearth: no word of the list stands alone here.
const char* raw = R"(nobody)";
