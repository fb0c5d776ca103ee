// run_scenario DRIVER SCENARIO: types a scenario file into a fresh driver in a folder of its own, and says
// which of its expectations do not hold.
#include "tests/driver/Errors.h"
#include "tests/driver/LineReader.h"
#include "tests/driver/Scenario.h"
#include "tests/support/Patterns.h"
#include "tests/support/TemporaryFolder.h"

#include <array>
#include <cstdlib>
#include <iostream>
#include <map>
#include <sstream>

#include <QImage>

namespace {

using namespace mirelle;
using driver::Directive;
using driver::Scenario;
using driver::Step;
using driver::UsageError;

constexpr int kFailed = 1;
constexpr int kUsageStatus = 2;

class Run {
public:
    Run(std::string driverProgram, const std::string& scenarioText)
        : program_(std::move(driverProgram)), scenario_(driver::ReadScenario(scenarioText, folder_.Path())) {}

    // Returns how many expectations do not hold.
    int Go() {
        folder_.MakeFolder("disk/C/Mirelle");
        for (const Directive& directive : scenario_.directives)
            Follow(directive, Preparations());
        const int status = Converse();
        if (status != exitStatus_) {
            Complain(0,
                     "the exit status is " + std::to_string(status) + ", not " + std::to_string(exitStatus_));
        }
        CompareAnswers();
        for (const Directive& directive : scenario_.directives)
            Follow(directive, Checks());
        if (failures_ > 0) std::cerr << folder_.ContentOf("errors");
        return failures_;
    }

private:
    struct Row {
        const char* name;
        std::size_t arguments;
        void (Run::*run)(const Directive& directive);
    };

    static constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);
    static std::span<const Row> Preparations();
    static std::span<const Row> Checks();

    static const Row* Find(const Directive& directive, std::span<const Row> rows) {
        for (const Row& row : rows) {
            const bool fits = row.arguments == kAnyNumber || row.arguments + 1 == directive.words.size();
            if (directive.words.front() == row.name && fits) return &row;
        }
        return nullptr;
    }

    void Follow(const Directive& directive, std::span<const Row> rows) {
        if (const Row* row = Find(directive, rows)) return (this->*row->run)(directive);
        if (Find(directive, Preparations()) || Find(directive, Checks())) return; // another time
        throw UsageError("line " + std::to_string(directive.line) + " is no directive");
    }

    void Complain(int line, const std::string& what) {
        ++failures_;
        if (line > 0) std::cerr << "line " << line << ": ";
        std::cerr << what << '\n';
    }

    std::string PathFor(const std::string& name) const {
        const std::filesystem::path path = folder_ / name;
        std::filesystem::create_directories(path.parent_path());
        return path.string();
    }

    // Preparations.

    void MakePicture(const Directive& directive) {
        const auto number = [&](std::size_t word) {
            return driver::WholeNumberIn(directive.words[word], 0, 4096);
        };
        const Bitmap chart = test::Chart(number(2), number(3), static_cast<std::uint8_t>(number(4)));
        const QImage image(reinterpret_cast<const uchar*>(chart.Pixels().data()), chart.Width(),
                           chart.Height(), QImage::Format_RGB32);
        if (!image.save(QString::fromStdString(PathFor(directive.words[1])))) {
            throw UsageError("line " + std::to_string(directive.line) + ": that picture can't be written");
        }
        pictures_[directive.words[1]] = chart;
    }

    void MakeFile(const Directive& directive) {
        PathFor(directive.words[1]);
        folder_.MakeFile(directive.words[1], directive.words[2]);
    }

    void MakeFolder(const Directive& directive) { folder_.MakeFolder(directive.words[1]); }

    void AddArguments(const Directive& directive) {
        for (std::size_t i = 1; i < directive.words.size(); ++i)
            arguments_ += " '" + directive.words[i] + "'";
    }

    void ExpectExitStatus(const Directive& directive) {
        exitStatus_ = driver::WholeNumberIn(directive.words[1], 0, 255);
    }

    // The session.

    int Converse() {
        std::string input;
        for (const Step& step : scenario_.steps)
            input += step.command + '\n';
        folder_.MakeFile("commands", input);
        const auto quoted = [this](const char* name) { return "'" + folder_ / name + "'"; };
        const std::string line = "'" + program_ + "' --root " + quoted("disk") + arguments_ + " < " +
                                 quoted("commands") + " > " + quoted("answers") + " 2> " + quoted("errors");
        const int status = std::system(line.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    void CompareAnswers() {
        std::istringstream answers(folder_.ContentOf("answers"));
        for (const Step& step : scenario_.steps) {
            const std::string answer = driver::ReadLine(answers).value_or("(no answer)");
            if (driver::IsExpected(step, answer)) continue;
            Complain(step.line, step.command + "\n  answered " + answer + "\n  and not  " + step.answer);
        }
        while (const auto answer = driver::ReadLine(answers))
            Complain(0, "an answer too many: " + *answer);
    }

    // Checks.

    void CheckExists(const Directive& directive) {
        if (!std::filesystem::exists(folder_ / directive.words[1]))
            Complain(directive.line, directive.words[1] + " is missing");
    }

    void CheckMissing(const Directive& directive) {
        if (std::filesystem::exists(folder_ / directive.words[1]))
            Complain(directive.line, directive.words[1] + " is there");
    }

    void CheckSame(const Directive& directive) {
        const auto number = [&](std::size_t word) {
            return driver::WholeNumberIn(directive.words[word], 0, 4096);
        };
        const auto picture = pictures_.find(directive.words[2]);
        if (picture == pictures_.end()) throw UsageError("there is no picture " + directive.words[2]);
        const Bitmap area = test::Cut(picture->second, number(3), number(4), number(5), number(6));
        const std::string dumped = folder_.ContentOf(directive.words[1]);
        if (dumped.size() != area.ByteCount()) {
            return Complain(directive.line, directive.words[1] + " has " + std::to_string(dumped.size()) +
                                                " bytes and not " + std::to_string(area.ByteCount()));
        }
        for (int y = 0; y < area.Height(); ++y) {
            for (int x = 0; x < area.Width(); ++x) {
                const auto* bytes =
                    reinterpret_cast<const std::uint8_t*>(dumped.data()) + (y * area.Width() + x) * 4;
                const Pixel wanted = area.At(x, y);
                if (bytes[0] == wanted.blue && bytes[1] == wanted.green && bytes[2] == wanted.red) continue;
                return Complain(directive.line, directive.words[1] + " differs at " + std::to_string(x) +
                                                    ", " + std::to_string(y));
            }
        }
    }

    std::string program_;
    test::TemporaryFolder folder_;
    Scenario scenario_;
    std::map<std::string, Bitmap> pictures_;
    std::string arguments_;
    int exitStatus_ = 0;
    int failures_ = 0;
};

std::span<const Run::Row> Run::Preparations() {
    static constexpr std::array kRows = {
        Row{"picture", 4, &Run::MakePicture},   Row{"file", 2, &Run::MakeFile},
        Row{"folder", 1, &Run::MakeFolder},     Row{"driver", kAnyNumber, &Run::AddArguments},
        Row{"exit", 1, &Run::ExpectExitStatus},
    };
    return kRows;
}

std::span<const Run::Row> Run::Checks() {
    static constexpr std::array kRows = {
        Row{"exists", 1, &Run::CheckExists},
        Row{"missing", 1, &Run::CheckMissing},
        Row{"same", 6, &Run::CheckSame},
    };
    return kRows;
}

std::string ContentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw UsageError("there is no file " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::cerr << "run_scenario DRIVER SCENARIO\n";
        return kUsageStatus;
    }
    try {
        return Run(arguments[1], ContentOf(arguments[2])).Go() == 0 ? 0 : kFailed;
    } catch (const std::exception& error) {
        std::cerr << arguments[2] << ": " << error.what() << '\n';
        return kUsageStatus;
    }
}
