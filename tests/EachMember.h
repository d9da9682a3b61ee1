#pragma once

#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

namespace quarn::test {

namespace detail {

template <class T, class Arguments, std::size_t... i>
std::vector<T> changedOneByOne(const Arguments& blank, const Arguments& changed, std::index_sequence<i...>) {
    const auto withChanged = [&](auto position) {
        Arguments arguments = blank;
        std::get<position>(arguments) = std::get<position>(changed);
        return std::make_from_tuple<T>(arguments);
    };
    return {std::make_from_tuple<T>(blank), withChanged(std::integral_constant<std::size_t, i>())...};
}

}  // namespace detail

/// An object made from the arguments of `blank`, then one object for each argument, in which it is replaced by that of
/// `changed`. Changing one argument at a time also detects members that are exchanged.
template <class T, class... Arguments>
std::vector<T> changedOneByOne(const std::tuple<Arguments...>& blank, const std::tuple<Arguments...>& changed) {
    return detail::changedOneByOne<T>(blank, changed, std::index_sequence_for<Arguments...>());
}

template <class T>
void expectAllDifferent(const std::vector<T>& objects) {
    for (std::size_t i = 0; i < objects.size(); ++i) {
        for (std::size_t j = 0; j < objects.size(); ++j) {
            EXPECT_EQ(objects[i] == objects[j], i == j) << i << " and " << j;
            EXPECT_EQ(objects[i] != objects[j], i != j) << i << " and " << j;
        }
    }
}

}  // namespace quarn::test
