#include "forms/RunTimeError.h"

#include <algorithm>
#include <array>

namespace mirelle {
namespace {

struct Row {
    ErrorNumber number;
    const char* description;
};

constexpr std::array kDescriptions = {
    Row{ErrorNumber::InvalidProcedureCall, "Invalid procedure call or argument"},
    Row{ErrorNumber::Overflow, "Overflow"},
    Row{ErrorNumber::OutOfMemory, "Out of memory"},
    Row{ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    Row{ErrorNumber::DivisionByZero, "Division by zero"},
    Row{ErrorNumber::TypeMismatch, "Type mismatch"},
    Row{ErrorNumber::BadFileName, "Bad file name or number"},
    Row{ErrorNumber::FileNotFound, "File not found"},
    Row{ErrorNumber::DeviceIOError, "Device I/O error"},
    Row{ErrorNumber::FileAlreadyExists, "File already exists"},
    Row{ErrorNumber::DiskFull, "Disk full"},
    Row{ErrorNumber::InputPastEnd, "Input past end of file"},
    Row{ErrorNumber::BadRecordNumber, "Bad record number"},
    Row{ErrorNumber::PermissionDenied, "Permission denied"},
    Row{ErrorNumber::PathFileAccess, "Path/File access error"},
    Row{ErrorNumber::PathNotFound, "Path not found"},
    Row{ErrorNumber::ObjectNotSet, "Object variable or With block variable not set"},
    Row{ErrorNumber::NoSuchArrayElement, "Control array element doesn't exist"},
    Row{ErrorNumber::InvalidPropertyValue, "Invalid property value"},
    Row{ErrorNumber::InvalidPropertyArrayIndex, "Invalid property array index"},
    Row{ErrorNumber::CannotCreateObject, "ActiveX component can't create object"},
    Row{ErrorNumber::AutomationError, "Automation error"},
    Row{ErrorNumber::InvalidPicture, "Invalid picture"},
    Row{ErrorNumber::DialogCancelled, "Cancel was selected."},
};

} // namespace

std::string DescriptionOf(ErrorNumber number) {
    const auto row = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                  [number](const Row& candidate) { return candidate.number == number; });
    return row != kDescriptions.end() ? row->description : "Application-defined or object-defined error";
}

} // namespace mirelle
