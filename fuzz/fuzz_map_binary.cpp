// Reads its input as a binary map file; what could be read must survive being written and read again. The mutator mends
// a length in the second and third octet: the input begins with three octets that are left out.

#include "map_fuzz_files.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    constexpr std::size_t PrefixSize = 3;
    if (size < PrefixSize) {
        return 0;
    }
    static MapFuzzFiles files;
    files.readTwice(MapFile::Map, data + PrefixSize, size - PrefixSize);
    return 0;
}
