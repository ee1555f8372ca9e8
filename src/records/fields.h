#pragma once
#include "baselib/base.h"
#include "baselib/path.h"
#include <functional>

class CharArr;
class VrIOCL;

// A Windows colour value, red + green * 256 + blue * 65536, that a description file writes as R G B.
// Only the low byte of each written component counts.
using ColourTP = unsigned;

// Texts of a description file take at most this many bytes with their terminator.
constexpr int TextSize = PathSize;

// 1 when the text is exactly "NULL" or "null", the words that stand for no text or no file.
PANELKIT_API int slIsNullWord(const char* text);

// Which words mean no text to a field: none, "NULL" and "null", or "NULL" alone.
enum class NullWord
{
    Kept,
    Empty,
    CapitalsEmpty
};

// Sees the fields of one record in the order of the file. A record names each of its fields once, in
// EachFieldM; what reads, prints or checks records are visitors of that one list.
class PANELKIT_API FieldVisitorCL
{
public:
    virtual ~FieldVisitorCL();
    virtual void IntM(const char* name, int& value) = 0;
    virtual void RealM(const char* name, float& value) = 0;
    virtual void IntPairM(const char* name, int (&values)[2]) = 0;
    virtual void RealPairM(const char* name, float (&values)[2]) = 0;
    // flag: null for a plain colour; else 1 while the colour applies, which a negative red prevents.
    virtual void ColourM(const char* name, ColourTP& colour, int* flag = nullptr) = 0;
    virtual void TextM(const char* name, CharArr& text, NullWord nullWord) = 0;
    // What secondary sections added to the record: rows, each with fields of its own; a row that is just one
    // text has a field without name. see(visitor, row) is called for each row.
    virtual void ListM(
        const char* name, int rows, const std::function<void(FieldVisitorCL& visitor, int row)>& see);
    // The record turned out to be unreadable: the fields from here on keep their defaults.
    virtual void StopReadingM();
};

// Reads each field it sees from a description file. What can't be read keeps its value.
class PANELKIT_API FieldReaderCL : public FieldVisitorCL
{
public:
    explicit FieldReaderCL(VrIOCL* io); // Null: nothing can be read.
    void IntM(const char* name, int& value) override;
    void RealM(const char* name, float& value) override;
    void IntPairM(const char* name, int (&values)[2]) override;
    void RealPairM(const char* name, float (&values)[2]) override;
    void ColourM(const char* name, ColourTP& colour, int* flag) override;
    void TextM(const char* name, CharArr& text, NullWord nullWord) override;
    void StopReadingM() override;

private:
    VrIOCL* io_;
};

// Counts the values, numbers and texts, that a record takes in a file at least: each number it sees becomes
// 0, a data type among them that says that nothing more follows.
class PANELKIT_API FieldCounterCL : public FieldVisitorCL
{
public:
    int CountM() const { return count_; }
    void IntM(const char* name, int& value) override;
    void RealM(const char* name, float& value) override;
    void IntPairM(const char* name, int (&values)[2]) override;
    void RealPairM(const char* name, float (&values)[2]) override;
    void ColourM(const char* name, ColourTP& colour, int* flag) override;
    void TextM(const char* name, CharArr& text, NullWord nullWord) override;
    void StopReadingM() override { isCounting_ = false; }

private:
    void addM(int values) { count_ += isCounting_ ? values : 0; }

    int count_ { 0 };
    bool isCounting_ { true };
};

// The values of the shortest record of a main section.
template <class RecordTP> int slFewestValues()
{
    RecordTP record(AliveTag);
    FieldCounterCL counter;
    record.EachCommonFieldM(counter);
    record.EachFieldM(counter);
    return counter.CountM();
}

// Reads one record of a main section: from its defaults (the delete tag is kept), the common fields,
// then its own. 1; 0, and no change, without a file.
template <class RecordTP> int slReadRecord(RecordTP& record, VrIOCL* io)
{
    if (io == nullptr) {
        return 0;
    }
    record = RecordTP(record.GetDeleteTagM());
    record.RecordTP::DVrCommonBoxCL::FmReadInterfaceM(io, 0);
    FieldReaderCL reader(io);
    record.EachFieldM(reader);
    return 1;
}
