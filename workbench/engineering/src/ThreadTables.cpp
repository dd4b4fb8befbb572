#include "engineering/ThreadTables.h"

#include "ThreadSpelling.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace engineering {

namespace {

// How many characters must be put in, taken out or replaced to make one text of the other.
std::size_t Distance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < right.size(); ++j) {
            const std::size_t replaced = diagonal + (left[i] == right[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

} // namespace

ThreadTables::ThreadTables(std::vector<ThreadStandard> standards) : _standards(std::move(standards)) {
    std::map<std::string, Place, std::less<>> withPitch;
    for (std::size_t i = 0; i < _standards.size(); ++i) {
        const std::vector<Thread>& threads = _standards[i].threads;
        for (std::size_t j = 0; j < threads.size(); ++j) {
            _places.emplace(NormalSpelling(threads[j].designation), Place{i, j});
            if (const std::optional<std::string> spelling = SpellingWithPitch(threads[j])) {
                withPitch.emplace(*spelling, Place{i, j});
            }
        }
    }
    _places.merge(withPitch); // a designation that a table has itself goes first
}

const ThreadStandard* ThreadTables::Standard(std::string_view name) const {
    const auto found = std::ranges::find(_standards, name, &ThreadStandard::name);
    return found == _standards.end() ? nullptr : &*found;
}

FoundThread ThreadTables::Find(std::string_view designation) const {
    const auto found = _places.find(NormalSpelling(designation));
    return found == _places.end() ? FoundThread{} : At(found->second);
}

std::vector<FoundThread> ThreadTables::Nearest(std::string_view designation, std::size_t count) const {
    const std::string wanted = NormalSpelling(designation);
    std::vector<std::pair<std::size_t, FoundThread>> all;
    for (const ThreadStandard& standard : _standards) {
        for (const Thread& thread : standard.threads) {
            all.push_back({Distance(wanted, NormalSpelling(thread.designation)), {&standard, &thread}});
        }
    }
    std::ranges::stable_sort(all, {}, &std::pair<std::size_t, FoundThread>::first);
    all.resize(std::min(count, all.size()));
    std::vector<FoundThread> nearest;
    std::ranges::transform(all, std::back_inserter(nearest), &std::pair<std::size_t, FoundThread>::second);
    return nearest;
}

FoundThread ThreadTables::At(Place place) const {
    const ThreadStandard& standard = _standards[place.standard];
    return {&standard, &standard.threads[place.thread]};
}

} // namespace engineering
