#include "launch/HourfoldApp.h"

int main(int argc, char** argv) { return vantle::HourfoldMain(argc, argv); }
