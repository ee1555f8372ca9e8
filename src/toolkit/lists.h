#pragma once
#include "toolkit/arrays.h"
#include <cstddef>

struct __POSITION;
// A place in a list or map; null: none.
typedef __POSITION* POSITION;

// A doubly linked list. A position stays valid until its element is removed. A null position, or taking from
// an empty list, throws std::out_of_range.
template <class TYPE, class ARG = const TYPE&> class CList : public CObject
{
public:
    CList() = default;
    ~CList() override { RemoveAll(); }

    // How many elements there are.
    INT_PTR GetCount() const { return count_; }
    INT_PTR GetSize() const { return count_; }
    // Whether there is none.
    BOOL IsEmpty() const { return count_ == 0; }
    // The first or the last element, which stays in the list.
    TYPE& GetHead() { return nodeM(head_)->value; }
    const TYPE& GetHead() const { return nodeM(head_)->value; }
    TYPE& GetTail() { return nodeM(tail_)->value; }
    const TYPE& GetTail() const { return nodeM(tail_)->value; }

    // Put a copy, or those of another list in their order, before the first or behind the last.
    POSITION AddHead(ARG value) { return positionM(insertM(value, nullptr, head_)); }
    POSITION AddTail(ARG value) { return positionM(insertM(value, tail_, nullptr)); }
    void AddHead(const CList* other)
    {
        const INT_PTR count = other->count_; // it may be this list
        NodeTP* from = other->tail_;
        for (INT_PTR k = 0; k < count; ++k, from = from->before) {
            AddHead(from->value);
        }
    }
    void AddTail(const CList* other)
    {
        const INT_PTR count = other->count_;
        NodeTP* from = other->head_;
        for (INT_PTR k = 0; k < count; ++k, from = from->next) {
            AddTail(from->value);
        }
    }
    // Puts a copy before the element there, or behind it.
    POSITION InsertBefore(POSITION at, ARG value)
    {
        NodeTP* const node = nodeM(at);
        return positionM(insertM(value, node->before, node));
    }
    POSITION InsertAfter(POSITION at, ARG value)
    {
        NodeTP* const node = nodeM(at);
        return positionM(insertM(value, node, node->next));
    }
    // Take an element out; a copy of it.
    TYPE RemoveHead() { return takeM(nodeM(head_)); }
    TYPE RemoveTail() { return takeM(nodeM(tail_)); }
    // Take one element out; all of them.
    void RemoveAt(POSITION at) { takeM(nodeM(at)); }
    void RemoveAll()
    {
        while (head_ != nullptr) {
            delete std::exchange(head_, head_->next);
        }
        tail_ = nullptr;
        count_ = 0;
    }

    // Of the first, of the last element; null: there is none.
    POSITION GetHeadPosition() const { return positionM(head_); }
    POSITION GetTailPosition() const { return positionM(tail_); }
    // The element there; the position goes on, null behind the last.
    TYPE& GetNext(POSITION& at) { return stepM(at, &NodeTP::next)->value; }
    const TYPE& GetNext(POSITION& at) const { return stepM(at, &NodeTP::next)->value; }
    TYPE& GetPrev(POSITION& at) { return stepM(at, &NodeTP::before)->value; }
    const TYPE& GetPrev(POSITION& at) const { return stepM(at, &NodeTP::before)->value; }

    // The element there.
    TYPE& GetAt(POSITION at) { return nodeM(at)->value; }
    const TYPE& GetAt(POSITION at) const { return nodeM(at)->value; }
    // Replaces it.
    void SetAt(POSITION at, ARG value) { nodeM(at)->value = value; }
    POSITION Find(ARG value, POSITION startAfter = nullptr) const // null: from the head; not there
    {
        NodeTP* node = startAfter == nullptr ? head_ : nodeM(startAfter)->next;
        while (node != nullptr && !(node->value == value)) {
            node = node->next;
        }
        return positionM(node);
    }
    POSITION FindIndex(INT_PTR index) const // null: outside
    {
        NodeTP* node = index < 0 ? nullptr : head_;
        for (; node != nullptr && index > 0; --index) {
            node = node->next;
        }
        return positionM(node);
    }

private:
    struct NodeTP
    {
        TYPE value;
        NodeTP* before;
        NodeTP* next;
    };
    static POSITION positionM(NodeTP* node) { return reinterpret_cast<POSITION>(node); }
    static NodeTP* nodeM(POSITION at) { return nodeM(reinterpret_cast<NodeTP*>(at)); }
    static NodeTP* nodeM(NodeTP* node)
    {
        if (node == nullptr) {
            throw std::out_of_range("no such element");
        }
        return node;
    }
    static NodeTP* stepM(POSITION& at, NodeTP* NodeTP::*way)
    {
        NodeTP* const node = nodeM(at);
        at = positionM(node->*way);
        return node;
    }
    NodeTP* insertM(ARG value, NodeTP* before, NodeTP* next)
    {
        NodeTP* const node = new NodeTP { value, before, next };
        (before == nullptr ? head_ : before->next) = node;
        (next == nullptr ? tail_ : next->before) = node;
        ++count_;
        return node;
    }
    TYPE takeM(NodeTP* node)
    {
        TYPE value(std::move(node->value));
        (node->before == nullptr ? head_ : node->before->next) = node->next;
        (node->next == nullptr ? tail_ : node->next->before) = node->before;
        delete node;
        --count_;
        return value;
    }

    NodeTP* head_ = nullptr;
    NodeTP* tail_ = nullptr;
    INT_PTR count_ = 0;
};

class CStringList : public CList<CString, const CString&>
{
};
class CPtrList : public CList<void*, void*>
{
};
class CObList : public CList<CObject*, CObject*> // the objects are the caller's
{
};
