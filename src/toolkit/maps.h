#pragma once
#include "toolkit/lists.h"
#include <string>
#include <type_traits>
#include <unordered_map>

// A specialisation for a key of another kind makes it a key of maps; it needs ==, too.
template <class ARG_KEY> UINT HashKey(ARG_KEY key)
{
    typedef std::decay_t<ARG_KEY> KeyTP;
    if constexpr (std::is_convertible<const KeyTP&, const char*>::value) {
        return static_cast<UINT>(std::hash<std::string>()(static_cast<const char*>(key)));
    } else {
        return static_cast<UINT>(std::hash<KeyTP>()(key));
    }
}

// Values by keys, in no order. Adding and removing elements makes positions invalid, except that the element
// last given by GetNextAssoc may be removed.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap : public CObject
{
public:
    CMap() = default;
    // How many pairs there are.
    INT_PTR GetCount() const { return static_cast<INT_PTR>(pairs_.size()); }
    INT_PTR GetSize() const { return GetCount(); }
    // Whether there is none.
    BOOL IsEmpty() const { return pairs_.empty(); }
    BOOL Lookup(ARG_KEY key, VALUE& value) const // FALSE: not there, value unchanged
    {
        auto found = pairs_.find(key);
        if (found == pairs_.end()) {
            return FALSE;
        }
        value = found->second;
        return TRUE;
    }
    VALUE& operator[](ARG_KEY key) { return pairs_[key]; } // a new one if it isn't there
    // The value of a key, there already or not.
    void SetAt(ARG_KEY key, ARG_VALUE value) { pairs_[key] = value; }
    // FALSE: it was not there.
    BOOL RemoveKey(ARG_KEY key) { return pairs_.erase(key) != 0; }
    // Destroys all pairs.
    void RemoveAll() { pairs_.clear(); }
    void InitHashTable(UINT size, BOOL allocate = TRUE) // a hint of how many there will be
    {
        if (allocate) {
            pairs_.reserve(size);
        }
    }

    POSITION GetStartPosition() const { return placeM(pairs_.begin()); } // null: empty
    // The element there; the position goes on, null behind the last.
    void GetNextAssoc(POSITION& at, KEY& key, VALUE& value) const
    {
        auto found = pairs_.find(reinterpret_cast<const PairTP*>(at)->first);
        key = found->first;
        value = found->second;
        at = placeM(std::next(found));
    }

private:
    struct HashTP
    {
        size_t operator()(const KEY& key) const { return HashKey<ARG_KEY>(key); }
    };
    typedef std::unordered_map<KEY, VALUE, HashTP> PairsTP;
    typedef typename PairsTP::value_type PairTP;
    POSITION placeM(typename PairsTP::const_iterator at) const
    {
        return at == pairs_.end() ? nullptr : reinterpret_cast<POSITION>(const_cast<PairTP*>(&*at));
    }

    PairsTP pairs_;
};

class CMapStringToString : public CMap<CString, const char*, CString, const char*>
{
};
class CMapStringToPtr : public CMap<CString, const char*, void*, void*>
{
};
class CMapPtrToPtr : public CMap<void*, void*, void*, void*>
{
};
class CMapWordToPtr : public CMap<WORD, WORD, void*, void*>
{
};
