#include "containers/tagged_arr.h"
#include <algorithm>
#include <climits>

namespace {

// Both parts of a list grow before either changes.
template <class TP> void makeRoom(std::vector<TP>& part, std::size_t size)
{
    if (size > part.capacity()) {
        part.reserve(std::max(size, 2 * part.capacity()));
    }
}

} // namespace

template <int N> TaggedArr<N>& TaggedArr<N>::operator=(const TaggedArr& other)
{
    if (this != &other) {
        store_ = other.store_ ? std::make_shared<Store>(*other.store_) : nullptr;
    }
    return *this;
}

template <int N> typename TaggedArr<N>::Store& TaggedArr<N>::storeM()
{
    if (!store_) {
        auto made = std::make_shared<Store>();
        made->values.reserve(std::size_t { FirstRoom } * N); // Most lists are short: no growth by ones.
        made->tags.reserve(FirstRoom);
        store_ = std::move(made);
    }
    return *store_;
}

template <int N> int TaggedArr<N>::GetBoundM() const
{
    return store_ ? static_cast<int>(store_->tags.size()) : 0;
}

template <int N> int TaggedArr<N>::GetAvailableNumM() const
{
    return store_ ? store_->available : 0;
}

template <int N> int TaggedArr<N>::GetAvailableNumM(int after) const
{
    const int first = after < 0 ? 0 : (after == INT_MAX ? after : after + 1);
    if (first >= GetBoundM()) {
        return 0;
    }
    return static_cast<int>(std::count(store_->tags.begin() + first, store_->tags.end(), AliveTag));
}

template <int N> int TaggedArr<N>::CheckAvailableM(int index) const
{
    return insideM(index) && store_->tags[index] == AliveTag ? 1 : 0;
}

template <int N> int TaggedArr<N>::SetItemM(const int* values, int index)
{
    const int bound = GetBoundM();
    if (values == nullptr || index < 0 || index == INT_MAX || (index > bound && index - bound > MaxGap)) {
        return 0;
    }
    int copy[N]; // The values may lie in this list, whose storage is about to move.
    std::copy_n(values, N, copy);
    Store& store = storeM();
    if (index >= bound) {
        makeRoom(store.values, (static_cast<std::size_t>(index) + 1) * N);
        makeRoom(store.tags, static_cast<std::size_t>(index) + 1);
        store.values.resize((static_cast<std::size_t>(index) + 1) * N, 0);
        store.tags.resize(static_cast<std::size_t>(index) + 1, DeletedTag);
    }
    if (store.tags[index] != AliveTag) {
        store.tags[index] = AliveTag;
        ++store.available;
    }
    std::copy_n(copy, N, store.values.begin() + static_cast<std::ptrdiff_t>(index) * N);
    return 1;
}

template <int N> int TaggedArr<N>::AddItemM(const int* values)
{
    const int index = GetBoundM();
    return SetItemM(values, index) ? index : -1;
}

template <int N> int TaggedArr<N>::InsertItemM(const int* values, int index)
{
    if (values == nullptr || !insideM(index)) {
        return SetItemM(values, index);
    }
    int copy[N];
    std::copy_n(values, N, copy);
    Store& store = *store_;
    makeRoom(store.values, store.values.size() + N);
    makeRoom(store.tags, store.tags.size() + 1);
    store.values.insert(store.values.begin() + static_cast<std::ptrdiff_t>(index) * N, copy, copy + N);
    store.tags.insert(store.tags.begin() + index, AliveTag);
    ++store.available;
    return 1;
}

template <int N> int TaggedArr<N>::GetItemM(int* out, int index) const
{
    if (out == nullptr || !insideM(index)) {
        return 0;
    }
    std::copy_n(GetItemPM(index), N, out);
    return 1;
}

template <int N> const int* TaggedArr<N>::GetItemPM(int index) const
{
    return insideM(index) ? store_->values.data() + static_cast<std::ptrdiff_t>(index) * N : nullptr;
}

template <int N> int* TaggedArr<N>::ElementAtPM(int index)
{
    return insideM(index) ? store_->values.data() + static_cast<std::ptrdiff_t>(index) * N : nullptr;
}

template <int N> int TaggedArr<N>::GetFirstIdxM() const
{
    return GetNextIdxM(-1);
}

template <int N> int TaggedArr<N>::GetNextIdxM(int from) const
{
    const int bound = GetBoundM();
    for (int index = from < 0 ? 0 : (from < bound ? from + 1 : bound); index < bound; ++index) {
        if (store_->tags[index] == AliveTag) {
            return index;
        }
    }
    return -1;
}

template <int N> int TaggedArr<N>::GetLastIdxM() const
{
    int index = GetBoundM() - 1;
    while (index >= 0 && store_->tags[index] != AliveTag) {
        --index;
    }
    return index;
}

template <int N> int TaggedArr<N>::DelItemM(int index)
{
    if (!insideM(index)) {
        return 1;
    }
    Store& store = *store_;
    if (store.tags[index] == AliveTag) {
        store.tags[index] = DeletedTag;
        --store.available;
    }
    if (index == GetBoundM() - 1) {
        store.tags.pop_back();
        store.values.resize(store.values.size() - N);
    }
    return 1;
}

template <int N> int TaggedArr<N>::DelAllM()
{
    store_.reset();
    return 1;
}

template class PANELKIT_API TaggedArr<1>;
template class PANELKIT_API TaggedArr<2>;
template class PANELKIT_API TaggedArr<3>;
