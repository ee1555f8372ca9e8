#include "containers/tagged_arr.h"
#include <algorithm>
#include <climits>

template <int N> TaggedArr<N>& TaggedArr<N>::operator=(const TaggedArr& other)
{
    if (this != &other) {
        store_ = other.store_ ? std::make_shared<Store>(*other.store_) : nullptr;
    }
    return *this;
}

template <int N>
TaggedArr<N>::Store::Store(const Store& other)
    : available(other.available)
{
    SetBoundM(other.bound_);
    std::copy_n(other.values_, static_cast<std::size_t>(bound_) * N, values_);
    std::copy_n(other.tags_, bound_, tags_);
}

template <int N> void TaggedArr<N>::Store::makeRoomM(int slots)
{
    const auto room = std::max(static_cast<std::size_t>(slots), static_cast<std::size_t>(room_) * 2);
    std::unique_ptr<int[]> values(new int[room * N]); // Not zeroed first.
    std::unique_ptr<char[]> tags(new char[room]);
    std::copy_n(values_, static_cast<std::size_t>(bound_) * N, values.get());
    std::copy_n(tags_, bound_, tags.get());
    moreValues_ = std::move(values);
    moreTags_ = std::move(tags);
    values_ = moreValues_.get();
    tags_ = moreTags_.get();
    room_ = static_cast<int>(std::min<std::size_t>(room, INT_MAX));
}

template <int N> void TaggedArr<N>::Store::SetBoundM(int slots)
{
    if (slots > room_) {
        makeRoomM(slots);
    }
    if (slots > bound_) {
        std::fill(ValuesM(bound_), ValuesM(slots), 0);
        std::fill(tags_ + bound_, tags_ + slots, DeletedTag);
    }
    bound_ = slots;
}

template <int N> int TaggedArr<N>::Store::AppendM(const int* values)
{
    if (bound_ == room_) {
        makeRoomM(bound_ + 1);
    }
    std::copy_n(values, N, ValuesM(bound_));
    tags_[bound_] = AliveTag;
    ++available;
    return bound_++;
}

template <int N> typename TaggedArr<N>::Store& TaggedArr<N>::storeM()
{
    if (!store_) {
        store_ = std::make_shared<Store>();
    }
    return *store_;
}

template <int N> int TaggedArr<N>::GetBoundM() const
{
    return store_ ? store_->BoundM() : 0;
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
    return static_cast<int>(std::count(store_->TagsM() + first, store_->TagsM() + GetBoundM(), AliveTag));
}

template <int N> int TaggedArr<N>::CheckAvailableM(int index) const
{
    return insideM(index) && store_->TagsM()[index] == AliveTag ? 1 : 0;
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
        store.SetBoundM(index + 1);
    }
    if (store.TagsM()[index] != AliveTag) {
        store.TagsM()[index] = AliveTag;
        ++store.available;
    }
    std::copy_n(copy, N, store.ValuesM(index));
    return 1;
}

template <int N> int TaggedArr<N>::AddItemM(const int* values)
{
    if (values == nullptr || GetBoundM() == INT_MAX) {
        return -1;
    }
    int copy[N]; // The values may lie in this list, whose storage is about to move.
    std::copy_n(values, N, copy);
    return storeM().AppendM(copy);
}

template <int N> int TaggedArr<N>::InsertItemM(const int* values, int index)
{
    if (values == nullptr || !insideM(index)) {
        return SetItemM(values, index);
    }
    int copy[N];
    std::copy_n(values, N, copy);
    Store& store = *store_;
    const int bound = store.BoundM();
    store.SetBoundM(bound + 1);
    std::copy_backward(store.ValuesM(index), store.ValuesM(bound), store.ValuesM(bound + 1));
    std::copy_backward(store.TagsM() + index, store.TagsM() + bound, store.TagsM() + bound + 1);
    std::copy_n(copy, N, store.ValuesM(index));
    store.TagsM()[index] = AliveTag;
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
    return insideM(index) ? store_->ValuesM(index) : nullptr;
}

template <int N> int* TaggedArr<N>::ElementAtPM(int index)
{
    return insideM(index) ? store_->ValuesM(index) : nullptr;
}

template <int N> int TaggedArr<N>::GetFirstIdxM() const
{
    return GetNextIdxM(-1);
}

template <int N> int TaggedArr<N>::GetNextIdxM(int from) const
{
    const int bound = GetBoundM();
    for (int index = from < 0 ? 0 : (from < bound ? from + 1 : bound); index < bound; ++index) {
        if (store_->TagsM()[index] == AliveTag) {
            return index;
        }
    }
    return -1;
}

template <int N> int TaggedArr<N>::GetLastIdxM() const
{
    int index = GetBoundM() - 1;
    while (index >= 0 && store_->TagsM()[index] != AliveTag) {
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
    if (store.TagsM()[index] == AliveTag) {
        store.TagsM()[index] = DeletedTag;
        --store.available;
    }
    if (index == GetBoundM() - 1) {
        store.SetBoundM(index);
    }
    return 1;
}

template <int N> int TaggedArr<N>::DelAllM()
{
    store_.reset();
    return 1;
}

template <int N> void TaggedArr<N>::SwapListM(TaggedArr& other) noexcept
{
    store_.swap(other.store_);
}

template class PANELKIT_API TaggedArr<1>;
template class PANELKIT_API TaggedArr<2>;
template class PANELKIT_API TaggedArr<3>;
