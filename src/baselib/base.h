#pragma once
#include "baselib/api.h"
#include <cstdio>

class VrIOCL;

// What the delete tag of an element says; fresh elements carry Deleted and count as empty.
constexpr char AliveTag = 31;
constexpr char DeletedTag = 32;

// The base of every record and runtime control that an Arr holds. The order of the virtual
// operations is part of the binary interface.
class PANELKIT_API VrBaseCL
{
public:
    VrBaseCL() = default;
    explicit VrBaseCL(char tag)
        : deleteTag_(tag)
    {
    }
    VrBaseCL(const VrBaseCL&) = default;
    VrBaseCL& operator=(const VrBaseCL&) = default;

    virtual void FmInputEvrFileM(VrIOCL* io);
    virtual void FmOutputEvrFileM(VrIOCL* io) const;
    virtual void FmReadEvrFileM(FILE* file);
    virtual void FmWriteEvrFileM(FILE* file) const;
    virtual void InitialM();
    virtual void SetByMergeM(const VrBaseCL& other, int index); // Does nothing here.
    virtual ~VrBaseCL();

    void SetDeleteTagM(char tag) { deleteTag_ = tag; }
    char GetDeleteTagM() const { return deleteTag_; }
    void DelItemM() { deleteTag_ = DeletedTag; }
    bool IsAliveM() const { return deleteTag_ == AliveTag; }

private:
    char deleteTag_ { DeletedTag };
};
