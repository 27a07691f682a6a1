#include "example/nearest_plot.h"

#include "asterix/asterix.h"

std::string nearestPlot(const unsigned char *data, std::size_t length)
{
    std::string nearest = "no plot";
    double range = 1000;
    _ast_datablock_t block; // keep one and reuse it: it holds on to its memory
    while (length > 0) {
        if (!ast_datablock_smart_decode(&block, data, length) || block.size == 0) {
            return korvane::asterix::errorText(block.error);
        }
        for (const _ast_datarecord_t &record : block.records) {
            _ast_datarecord_048_t plot;
            ast_datarecord_048_disassemble(&plot, record); // not valid for records of other categories
            if (plot.valid && plot.i040.present && plot.i040.rho < range) {
                range = plot.i040.rho;
                nearest = plot.i240.present ? plot.i240.text : "unknown aircraft";
            }
        }
        data += block.size;
        length -= block.size;
    }
    return nearest;
}
