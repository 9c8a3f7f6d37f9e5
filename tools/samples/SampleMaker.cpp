// Writes the sample configurations into a folder, one file a row of the table.
//   sample-maker FOLDER
#include "ndw/DcpFromAnswers.h"
#include "tools/samples/SampleTable.h"

#include <cstdio>
#include <memory>

namespace {

// Names and codes of the table are ASCII.
std::string Narrow(const std::wstring& text) {
    std::string bytes;
    for (const wchar_t c : text)
        bytes += static_cast<char>(c);
    return bytes;
}

bool Write(const std::string& path, const samples::Sample& sample) {
    DcpRecords records;
    SetDcpHeaderDefaults(records.header);
    SetDcpRecord4Defaults(records.record4);
    FillDcpRecords(records, samples::AnswersOf(sample), sample.icon);
    PrepareForWriting(records);
    const auto bytes = DcpBytes(records, [](wchar_t c) { return static_cast<unsigned char>(c); });
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) return false;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return std::fclose(file) == 0 && written;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) return 2;
    for (const samples::Sample& sample : samples::kSamples) {
        const std::string path = std::string(arguments[1]) + "/" + Narrow(samples::NameOf(sample)) + ".dcp";
        if (Write(path, sample)) continue;
        std::fprintf(stderr, "%s could not be written.\n", path.c_str());
        return 1;
    }
    return 0;
}
