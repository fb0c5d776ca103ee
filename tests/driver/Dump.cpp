#include "tests/driver/Dump.h"

#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace mirelle::driver {

std::string DumpPicture(const Picture& picture, const std::string& path) {
    const Bitmap& bitmap = picture.Pixels();
    if (path.empty() || path.find('\0') != std::string::npos)
        throw CommandError("no file can have that name");
    if (bitmap.IsEmpty()) {
        std::error_code ignored; // a file that was not there need not go
        if (std::filesystem::is_regular_file(path, ignored)) std::filesystem::remove(path, ignored);
        return "null";
    }
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    const std::span<const Pixel> pixels = bitmap.Pixels();
    file.write(reinterpret_cast<const char*>(pixels.data()),
               static_cast<std::streamsize>(pixels.size_bytes()));
    file.close();
    if (!file) throw CommandError("can't write " + JsonString(path));
    return JsonList({JsonNumber(bitmap.Width()), JsonNumber(bitmap.Height())});
}

} // namespace mirelle::driver
