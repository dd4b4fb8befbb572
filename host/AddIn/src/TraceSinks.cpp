#include "host/Trace.h"

#include <fstream>
#include <iostream>

namespace host {

namespace {

// A text that ends its line itself gets no second line break.
std::string Format(const TraceLine& iLine) {
    std::string line = iLine.channel + " " + std::to_string(iLine.level) + ": " + iLine.text;
    if (line.back() != '\n')
        line.push_back('\n');
    return line;
}

} // namespace

void StandardErrorSink::Write(const TraceLine& iLine) {
    std::cerr << Format(iLine);
}

struct FileSink::File {
    std::ofstream stream;
};

FileSink::FileSink(const std::string& iPath) : _file(std::make_unique<File>()) {
    _file->stream.open(iPath, std::ios::app | std::ios::binary);
}

FileSink::~FileSink() = default;

bool FileSink::IsOpen() const {
    return _file->stream.is_open();
}

void FileSink::Write(const TraceLine& iLine) {
    _file->stream << Format(iLine) << std::flush;
}

} // namespace host
