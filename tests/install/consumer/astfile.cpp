#include "astfile/file_reader.h"

using namespace korvane::astfile;

int main()
{
    const RecFile::Format format = RecFile::formatFromFileName("day.pcap");
    const std::unique_ptr<FileReader> reader = FileReader::create(format);
    return reader && !reader->open("no such file", format) && !reader->lastError().isEmpty() ? 0 : 1;
}
