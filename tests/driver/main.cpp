// mirelle_driver: the program without a window, driven by commands on the standard input.
#include "desktop/encoders/FileEncoders.h"
#include "desktop/files/NativeFileSystem.h"
#include "desktop/files/RootedWindowsFileSystem.h"
#include "desktop/pictures/ImageFileLoader.h"
#include "desktop/pictures/PictureFileIO.h"
#include "forms/RunTimeError.h"
#include "tests/driver/Conversation.h"
#include "tests/driver/Errors.h"
#include "tests/driver/Json.h"
#include "tests/driver/LineReader.h"
#include "tests/driver/NamedFiles.h"

#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

namespace {

using namespace mirelle;

constexpr int kUsageStatus = 2;

struct Options {
    std::string root;
    bool windowsPaths = true;
};

std::optional<Options> OptionsOf(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; i += 2) {
        const std::string name = arguments[i];
        const std::string value = i + 1 < count ? arguments[i + 1] : "";
        if (name == "--root" && !value.empty()) {
            options.root = value;
        } else if (name == "--paths" && (value == "windows" || value == "native")) {
            options.windowsPaths = value == "windows";
        } else {
            return std::nullopt;
        }
    }
    if (options.root.empty()) return std::nullopt;
    return options;
}

std::unique_ptr<FileSystem> FilesBelow(const Options& options) {
    const std::string root = std::filesystem::canonical(options.root).string();
    if (options.windowsPaths) return std::make_unique<RootedWindowsFileSystem>(root);
    const std::filesystem::path temporary = std::filesystem::path(root) / "tmp";
    std::filesystem::create_directories(temporary);
    return std::make_unique<NativeFileSystem>(root, (temporary / "komp.txt").string(), root);
}

Picture ReadPicture(const std::string& path) {
    try {
        return ReadTestPicture(path);
    } catch (const RunTimeError& error) {
        throw driver::CommandError("can't read " + driver::JsonString(path) + ": " + error.Description());
    }
}

int Converse(driver::Session& session) {
    driver::Conversation conversation(session);
    while (!conversation.Ended()) {
        const std::optional<std::string> line = driver::ReadLine(std::cin);
        if (!line) break;
        if (const auto answer = conversation.Answer(*line)) std::cout << *answer << std::endl;
    }
    return conversation.ExitStatus();
}

} // namespace

int main(int count, char** arguments) {
    const std::optional<Options> options = OptionsOf(count, arguments);
    if (!options) {
        std::cerr << "mirelle_driver --root DIR [--paths windows|native]\n";
        return kUsageStatus;
    }
    try {
        const std::unique_ptr<FileSystem> program = FilesBelow(*options);
        NativeFileSystem machine("/", {});
        driver::NamedFiles files(*program, machine);
        ImageFileLoader loader(files);
        FileEncoders encoders(files);
        driver::Session session({files, loader, encoders, ReadPicture});
        return Converse(session);
    } catch (const std::exception& error) {
        std::cerr << "mirelle_driver: " << error.what() << '\n';
        return kUsageStatus;
    }
}
