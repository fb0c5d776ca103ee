// What a table of properties is made of. A row is one property of one kind of owner; several kinds may have a
// property of the same name in a row each.
#pragma once

#include "forms/Property.h"
#include "tests/driver/Errors.h"
#include "tests/driver/References.h"
#include "tests/driver/Values.h"

#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace mirelle::driver {

template <class Owner>
struct PropertyRow {
    std::string name;
    bool takesIndex = false; // List(3), and not List
    // Nothing, or false, where the owner is of another kind.
    std::function<std::optional<std::string>(Owner& owner, int index)> get;
    std::function<bool(Owner& owner, int index, const std::string& word)> set;
};

// A row that reads by `get(kind&)`, or `get(kind&, index)` where it takes an index, and sets likewise by
// `set(kind&, word)` or `set(kind&, index, word)`.
template <class Kind, class Owner>
struct Rows {
    template <class Get, class Set>
    static PropertyRow<Owner> Of(std::string name, Get get, Set set) {
        return {std::move(name), std::is_invocable_v<Get, Kind&, int>,
                [get](Owner& owner, int index) -> std::optional<std::string> {
                    auto* kind = dynamic_cast<Kind*>(&owner);
                    if (!kind) return std::nullopt;
                    if constexpr (std::is_invocable_v<Get, Kind&, int>)
                        return Json(get(*kind, index));
                    else
                        return Json(get(*kind));
                },
                [set](Owner& owner, int index, const std::string& word) {
                    auto* kind = dynamic_cast<Kind*>(&owner);
                    if (!kind) return false;
                    if constexpr (std::is_invocable_v<Set, Kind&, int, std::string>)
                        set(*kind, index, word);
                    else
                        set(*kind, word);
                    return true;
                }};
    }
    // Assigned by code.
    template <class T>
    static PropertyRow<Owner> Plain(std::string name, Property<T> Kind::*member) {
        return Of(
            std::move(name), [member](Kind& kind) -> T { return kind.*member; },
            [member](Kind& kind, const std::string& word) { kind.*member = Read<T>(word); });
    }
    template <class Get>
    static PropertyRow<Owner> ReadOnly(std::string name, Get get) {
        return Of(name, get,
                  [name](Kind&, const std::string&) { throw UsageError(name + " can only be read"); });
    }
};

template <class Owner>
std::optional<std::string> GetFrom(const std::vector<PropertyRow<Owner>>& rows, Owner& owner,
                                   const Reference& property) {
    for (const auto& row : rows) {
        if (row.name != property.name || row.takesIndex != (property.index >= 0)) continue;
        if (auto value = row.get(owner, property.index)) return value;
    }
    return std::nullopt;
}

template <class Owner>
bool SetIn(const std::vector<PropertyRow<Owner>>& rows, Owner& owner, const Reference& property,
           const std::string& word) {
    for (const auto& row : rows) {
        if (row.name != property.name || row.takesIndex != (property.index >= 0)) continue;
        if (row.set(owner, property.index, word)) return true;
    }
    return false;
}

} // namespace mirelle::driver
