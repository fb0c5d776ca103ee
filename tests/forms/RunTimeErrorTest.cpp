#include "forms/RunTimeError.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace mirelle {
namespace {

struct Row {
    int number;
    const char* description;
};

TEST(RunTimeError, CarriesTheUsualTextOfItsNumber) {
    constexpr Row kRows[] = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {7, "Out of memory"},
        {9, "Subscript out of range"},
        {11, "Division by zero"},
        {13, "Type mismatch"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {57, "Device I/O error"},
        {58, "File already exists"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {63, "Bad record number"},
        {70, "Permission denied"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {380, "Invalid property value"},
        {381, "Invalid property array index"},
        {429, "ActiveX component can't create object"},
        {440, "Automation error"},
        {481, "Invalid picture"},
        {32755, "Cancel was selected."},
        {1, "Application-defined or object-defined error"},
        {12345, "Application-defined or object-defined error"},
    };
    for (const Row& row : kRows) {
        const RunTimeError error(static_cast<ErrorNumber>(row.number));
        EXPECT_EQ(static_cast<int>(error.Number()), row.number);
        EXPECT_EQ(error.Description(), row.description) << row.number;
        EXPECT_STREQ(error.what(), row.description) << row.number;
        EXPECT_EQ(error.Source(), "Mirelle");
    }
}

TEST(RunTimeError, TakesADescriptionAndASourceOfItsOwn) {
    const RunTimeError error(ErrorNumber::CodecFailure, "No picture", "cJPEG");
    EXPECT_EQ(error.Number(), ErrorNumber::CodecFailure);
    EXPECT_EQ(error.Description(), "No picture");
    EXPECT_EQ(error.Source(), "cJPEG");
}

TEST(ResumeNext, RunsAStatementToItsEnd) {
    int value = 0;
    EXPECT_TRUE(ResumeNext([&] { value = 7; }));
    EXPECT_EQ(value, 7);
}

TEST(ResumeNext, AbandonsAFailingStatementWhichKeepsItsTarget) {
    int value = 1;
    const auto failing = []() -> int { throw RunTimeError(ErrorNumber::Overflow); };
    EXPECT_FALSE(ResumeNext([&] { value = failing(); }));
    EXPECT_EQ(value, 1);
}

TEST(ResumeNext, LetsEverythingElseThrough) {
    struct End {};
    EXPECT_THROW(ResumeNext([] { throw End(); }), End);
    EXPECT_THROW(ResumeNext([] { throw std::logic_error("a fault of the program"); }), std::logic_error);
}

} // namespace
} // namespace mirelle
