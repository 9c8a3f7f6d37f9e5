#include "endurance/fuzz/Fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    Generator from({data, size});
    Examine(from);
    return 0;
}
