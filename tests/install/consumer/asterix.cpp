#include "asterix/asterix.h"

int main()
{
    ast_library_init();
    const unsigned char octets[] = {48, 0, 6, 0x80, 25, 201};
    _ast_datablock_t block;
    return ast_datablock_smart_decode(&block, octets, sizeof octets) && block.valid ? 0 : 1;
}
