// Run-time errors of the forms runtime: an exception that carries a number and a description.
//
// Two rules use it. Under the resume-next rule a failing statement is abandoned and the next one runs:
// wrap each statement in ResumeNext. Under the leave rule a handler ends at its first error: catch at its
// end.
#pragma once

#include <exception>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

namespace mirelle {

// The numbers that this system raises or asks for. The value is the number that users and scripts see.
enum class ErrorNumber {
    CodecFailure = 1, // raised by cJPEG, with a description of its own
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceIOError = 57,
    FileAlreadyExists = 58,
    DiskFull = 61,
    InputPastEnd = 62,
    BadRecordNumber = 63,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    NoSuchArrayElement = 340,
    InvalidPropertyValue = 380,
    InvalidPropertyArrayIndex = 381,
    CannotCreateObject = 429,
    AutomationError = 440, // what an object of another program tells in a number of its own
    InvalidPicture = 481,
    DialogCancelled = 32755,
};

// The runtime's usual text for a number.
std::string DescriptionOf(ErrorNumber number);

class RunTimeError : public std::exception {
public:
    explicit RunTimeError(ErrorNumber number) : RunTimeError(number, DescriptionOf(number)) {}
    RunTimeError(ErrorNumber number, std::string description, std::string source = "Mirelle")
        : number_(number), description_(std::move(description)), source_(std::move(source)) {}

    ErrorNumber Number() const { return number_; }
    const std::string& Description() const { return description_; }
    const std::string& Source() const { return source_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    ErrorNumber number_;
    std::string description_;
    std::string source_;
};

// Runs work that takes memory and gives its result. Raises error 7 where the memory can't be had, and where
// more is asked for than there can be.
template <class Work>
decltype(auto) WithinMemory(Work&& work) {
    try {
        return std::forward<Work>(work)();
    } catch (const std::bad_alloc&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    } catch (const std::length_error&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }
}

// Runs one statement; a run-time error in it is passed over, error 7 among them, from wherever the memory was
// asked for. Returns whether the statement ran to its end. Anything else that is thrown (the end of the
// program, say) goes through.
template <class Statement>
bool ResumeNext(Statement&& statement) {
    try {
        WithinMemory(std::forward<Statement>(statement));
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace mirelle
