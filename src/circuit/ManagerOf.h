#pragma once

#include <memory>
#include <vector>

namespace quarn::circuit {

/// A new manager that lists the objects, which belong to the caller from then on.
template <class Manager, class T, class... Settings>
std::unique_ptr<Manager> managerOf(std::vector<std::unique_ptr<T>> objects, Settings... settings) {
    std::vector<T*> pointers;
    pointers.reserve(objects.size());
    for (const auto& object : objects) pointers.push_back(object.get());
    auto manager = std::make_unique<Manager>(pointers, settings...);
    for (auto& object : objects) static_cast<void>(object.release());
    return manager;
}

}  // namespace quarn::circuit
