#pragma once
#include "baselib/io.h"
#include "containers/arr.h"
#include <initializer_list>
#include <memory>
#include <string>

// An element with a number, counting what happens to its objects.
class CountedCL : public VrBaseCL
{
public:
    CountedCL() { ++constructed; }
    explicit CountedCL(int n, char tag = AliveTag)
        : VrBaseCL(tag)
        , number(n)
    {
        ++constructed;
    }
    CountedCL(const CountedCL& other)
        : VrBaseCL(other)
        , number(other.number)
    {
        ++constructed;
    }
    CountedCL& operator=(const CountedCL& other)
    {
        VrBaseCL::operator=(other);
        number = other.number;
        ++assigned;
        return *this;
    }
    ~CountedCL() override { ++destroyed; }

    void FmInputEvrFileM(VrIOCL* io) override
    {
        int tag = DeletedTag;
        io->InputDM(&tag, &number);
        SetDeleteTagM(static_cast<char>(tag));
    }
    void FmOutputEvrFileM(VrIOCL* io) const override
    {
        io->OutputDM(GetDeleteTagM());
        io->OutputDM(number);
    }

    static void StartCountingM() { constructed = destroyed = assigned = 0; }
    static int LiveM() { return constructed - destroyed; }

    int number { 0 };
    inline static int constructed = 0;
    inline static int destroyed = 0;
    inline static int assigned = 0;
};

// An element with heap memory of its own: what is freed twice, lost or read after its end shows.
class HeapCL : public VrBaseCL
{
public:
    HeapCL()
        : HeapCL(0, DeletedTag)
    {
    }
    explicit HeapCL(int n, char tag = AliveTag)
        : VrBaseCL(tag)
        , held_(std::make_unique<int>(n))
    {
        ++live;
    }
    HeapCL(const HeapCL& other)
        : VrBaseCL(other)
        , held_(std::make_unique<int>(*other.held_))
    {
        ++live;
    }
    HeapCL& operator=(const HeapCL& other)
    {
        VrBaseCL::operator=(other);
        *held_ = *other.held_;
        return *this;
    }
    ~HeapCL() override { --live; }
    int NumberM() const { return *held_; }

    inline static int live = 0;

private:
    std::unique_ptr<int> held_;
};

// An element whose copies share what the destructor gives back: an array must empty a slot before it destroys
// it.
class SharingCL : public VrBaseCL
{
public:
    SharingCL() = default;
    explicit SharingCL(int n)
        : VrBaseCL(AliveTag)
        , number(n)
    {
    }
    SharingCL(const SharingCL&) = default;
    SharingCL& operator=(const SharingCL&) = default;
    ~SharingCL() override { givenBack += number != 0 ? std::to_string(number) : ""; }

    int number { 0 };
    inline static std::string givenBack;
};

inline int numberOf(const SharingCL& element)
{
    return element.number;
}
inline int numberOf(const CountedCL& element)
{
    return element.number;
}
inline int numberOf(const HeapCL& element)
{
    return element.NumberM();
}

// One character a slot below the bound: the number of an alive item, '.' for a deleted one.
template <class T> std::string shown(const Arr<T>& arr)
{
    std::string text;
    for (int i = 0; i < arr.GetBoundM(); ++i) {
        text += arr.CheckAvailableM(i) != 0 ? std::to_string(numberOf(*arr.GetItemPM(i))) : ".";
    }
    return text;
}

// Alive items of the numbers given.
template <class T> void fill(Arr<T>* arr, std::initializer_list<int> numbers)
{
    for (const int number : numbers) {
        arr->AddItemM(T(number));
    }
}
