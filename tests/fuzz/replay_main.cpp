// Feeds the files named on the command line, and every file of the folders named there, to a fuzz target. So the corpus
// is a regression test with any compiler.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace
{

namespace fs = std::filesystem;

std::vector<fs::path> filesIn(const fs::path &folder)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry &entry : fs::directory_iterator(folder)) {
        if (entry.is_regular_file())
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::optional<std::vector<std::uint8_t>> contentOf(const fs::path &file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        return std::nullopt;
    std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(stream), {}};
    if (stream.bad())
        return std::nullopt;
    bytes.shrink_to_fit(); // a read past the input is one past the block, where the sanitizer sees it
    return bytes;
}

bool replay(const fs::path &file)
{
    const auto bytes = contentOf(file);
    if (!bytes) {
        std::fprintf(stderr, "cannot read %s\n", file.c_str());
        return false;
    }
    LLVMFuzzerTestOneInput(bytes->data(), bytes->size());
    return true;
}

} // namespace

int main(int count, char **arguments)
{
    std::size_t replayed = 0;
    bool allRead = true;
    for (int i = 1; i < count; ++i) {
        const fs::path path = arguments[i];
        std::error_code error;
        const bool folder = fs::is_directory(path, error);
        for (const fs::path &file : folder ? filesIn(path) : std::vector{path}) {
            if (replay(file))
                ++replayed;
            else
                allRead = false;
        }
    }
    std::printf("%zu inputs replayed\n", replayed);
    return allRead && replayed > 0 ? 0 : 1;
}
