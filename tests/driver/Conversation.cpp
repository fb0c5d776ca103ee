#include "tests/driver/Conversation.h"

#include "forms/RunTimeError.h"
#include "tests/driver/Commands.h"
#include "tests/driver/Errors.h"
#include "tests/driver/LineReader.h"

#include <exception>
#include <vector>

namespace mirelle::driver {
namespace {

// An answer is one line, whatever a description holds.
std::string OneLine(std::string text) {
    for (char& c : text) {
        if (static_cast<unsigned char>(c) < 0x20) c = ' ';
    }
    return text;
}

std::string Ok(const std::string& value) {
    return value.empty() ? "ok" : "ok " + value;
}

} // namespace

std::optional<std::string> Conversation::Answer(std::string_view line) {
    try {
        const std::vector<std::string> words = WordsOf(line);
        if (words.empty()) return std::nullopt;
        session_.desktop.time.HandlersHaveEnded();
        return Ok(Run(session_, words));
    } catch (const UsageError& error) {
        ++session_.usageErrors;
        return OneLine(std::string("error usage ") + error.what());
    } catch (const CommandError& error) {
        return OneLine(std::string("error ") + error.what());
    } catch (const RunTimeError& error) {
        return OneLine("error run-time " + std::to_string(static_cast<int>(error.Number())) + " " +
                       error.Description());
    } catch (const std::exception& error) { // the memory at hand, say
        return OneLine(std::string("error ") + error.what());
    } catch (const SessionEnded&) {
        ended_ = true;
        return "ok";
    } catch (const test::ProgramEnded&) {
        ended_ = true;
        return "ok ended";
    }
}

} // namespace mirelle::driver
