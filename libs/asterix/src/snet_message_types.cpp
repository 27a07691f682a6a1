#include "asterix/alert_records.h"

namespace {

struct MessageType {
    std::uint8_t code;
    const char *id;
};

// As the category document abbreviates them.
constexpr MessageType MessageTypes[] = {
    {1, "ALIVE"},
    {2, "RAMLD"},
    {3, "RAMHD"},
    {4, "MSAW"},
    {5, "APW"},
    {6, "CLAM"},
    {7, "STCA"},
    {8, "APM"},
    {9, "ALM"},
    {10, "WRA"},
    {11, "OTA"},
    {12, "RDM"},
    {13, "RCM"},
    {14, "TSM"},
    {15, "UTMM"},
    {16, "SBOA"},
    {17, "EOC"},
    {18, "ACASRA"},
    {19, "NTCA"},
    {20, "DBPSM"},
    {21, "SAM"},
    {22, "OCAT"},
    {23, "VCD"},
    {24, "VRAM"},
    {25, "CHAM"},
    {26, "DSAM"},
    {27, "HAM"},
    {28, "VPM"},
    {29, "TTA"},
    {30, "CRA"},
    {31, "ASM"},
    {32, "IAVM"},
    {33, "FTD"},
    {34, "ITD"},
    {35, "IIA"},
    {36, "SQW"},
    {37, "CUW"},
    {38, "CATC"},
    {39, "NOCLR"},
    {40, "NOMOV"},
    {41, "NOH"},
    {42, "WRTY"},
    {43, "STOCC"},
    {44, "ONGOING"},
    {45, "NTZ"},
    {97, "LTW"},
    {98, "HVI"},
    {99, "AIW"},
};

} // namespace

const char *ast_snet_message_type_get_id(std::uint8_t type)
{
    for (const MessageType &messageType : MessageTypes) {
        if (messageType.code == type) {
            return messageType.id;
        }
    }
    return "UNKNOWN";
}
