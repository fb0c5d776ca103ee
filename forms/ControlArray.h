// A control array: controls of one kind that share a name and are told apart by an index.
#pragma once

#include "forms/Form.h"
#include "forms/RunTimeError.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>

namespace mirelle {

template <class Element>
class ControlArray {
public:
    // Elements 0 to count - 1.
    ControlArray(Form& form, const std::string& name, int count) {
        for (int index = 0; index < count; ++index)
            Add(form, name, index);
    }
    // Just these indices.
    ControlArray(Form& form, const std::string& name, std::initializer_list<int> indices) {
        for (const int index : indices)
            Add(form, name, index);
    }

    // Raises error 340 for an element that does not exist.
    Element& operator()(int index) {
        const auto found = elements_.find(index);
        if (found == elements_.end()) throw RunTimeError(ErrorNumber::NoSuchArrayElement);
        return *found->second;
    }
    int Count() const { return static_cast<int>(elements_.size()); }

    // Connects one handler, which is told the index, to the Click of every element.
    void OnClick(const std::function<void(int)>& handler) {
        for (auto& [index, element] : elements_)
            element->Click.Connect([handler, i = index] { handler(i); });
    }
    // Runs an action on every element, in the order of the indices.
    template <class Action>
    void ForEach(Action action) {
        for (auto& [index, element] : elements_)
            action(*element);
    }

private:
    void Add(Form& form, const std::string& name, int index) {
        elements_.emplace(index, std::make_unique<Element>(form, name, index));
    }

    std::map<int, std::unique_ptr<Element>> elements_;
};

} // namespace mirelle
