#pragma once
#include "dialog/translation.h"
#include "file_reading.h"
#include "findings.h"
#include "record_view.h"
#include <filesystem>
#include <unordered_map>

// Some kinds, by their KindCodes.
struct KindsCL
{
    constexpr KindsCL(std::initializer_list<int> codes)
    {
        for (const int code : codes) {
            bits |= 1U << code;
        }
    }
    unsigned bits { 0 };
};

// One control of the file, as the checks across records need it.
struct CheckedControlCL
{
    // Small: there may be very many.
    std::int8_t kind { 0 };    // Its KindCode; 0 for a new rotate button.
    std::int8_t grammar { 0 }; // Its section.
    bool isStacked { false };  // Its window index counts.
    bool hasText : 1;
    bool isReadOnly : 1;
    bool isDefault : 1;
    int windowIndex { 0 };
    int id { 0 };
    int x { 0 }, y { 0 }, w { 0 }, h { 0 };
    std::uint32_t idAt { 0 }, indexAt { 0 }, positionAt { 0 }; // Offsets in the file.
    int group { 0 };
#ifdef _WIN32
    // Captions are measured there.
    bool isSunken { false };
    std::uint32_t captionAt { 0 };
    CharArr caption;             // Of a kind that shows one; GBK.
    const char* kindName { "" }; // As dump has it.
#endif
    CheckedControlCL()
        : hasText(false)
        , isReadOnly(false)
        , isDefault(false)
    {
    }
    bool IsM(KindsCL kinds) const
    {
        return (kinds.bits >> kind & 1U) != 0;
    }
    // Reaches from x to this, and from y to this; of a combo box only what shows while its list is closed.
    std::int64_t RightM() const
    {
        return std::int64_t { x } + w;
    }
    std::int64_t BottomM() const
    {
        constexpr int ComboHeight = 24;
        return std::int64_t { y } + (kind == ComboBoxCode && h > ComboHeight ? ComboHeight : h);
    }
};

// The arrows of a spin edit, which are a control too.
struct ArrowsCL
{
    int record;
    int id;
    std::uint32_t at; // Where that stands in the file.
};

// The name of a picture as it stands in the file, and whether a region is made of it.
struct NamedPictureCL
{
    SpanCL span;
    bool isRegion;
};

// The pictures that a file names: looked at once each.
class PicturesCL
{
public:
    explicit PicturesCL(std::filesystem::path folder)
        : folder_(std::move(folder))
    {
    }
    // name: GBK, as written. isRegion: whether a region is made of it.
    void CheckM(const std::string& name, bool isRegion, std::size_t offset, FindingsCL& findings);

private:
    enum class State
    {
        Good,
        TooLarge, // For a region alone.
        Missing,
        Bad,
        Remote
    };
    struct PictureCL
    {
        State state;
        DetailsCL shown; // Its name in UTF-8.
    };
    State stateM(const std::string& name);
    std::filesystem::path findM(const std::string& name) const;

    std::filesystem::path folder_;
    std::unordered_map<std::string, PictureCL> states_;
};

using CheckedControlsTP = std::vector<CheckedControlCL>;
// From the top of the stack down, those without a place in it behind the others.
using StackTP = std::vector<const CheckedControlCL*>;

std::uint32_t offsetOf(const FieldCL& field); // Where it stands in the file; 0 where it doesn't.
// The fields that all controls have, in a view; valid until it shows other fields.
struct CommonFieldsCL
{
    CommonFieldsCL() = default;
    explicit CommonFieldsCL(const RecordViewCL& view)
        : index(view.FindM("window_index"))
        , id(view.FindM("function_id"))
        , position(view.FindM("position"))
        , size(view.FindM("size"))
    {
    }
    const FieldCL* index { nullptr };
    const FieldCL* id { nullptr };
    const FieldCL* position { nullptr };
    const FieldCL* size { nullptr };
};

// Of a record; may take the caption from it.
CheckedControlCL checkedControlOf(const RecordViewCL& view, const CommonFieldsCL& common, int kind,
    const char* kindName, int grammar, bool isStacked);
StackTP stackOf(const CheckedControlsTP& controls);
// Appends the names of pictures. isPlain: all values were read just as they stand.
void checkValues(FileReadingCL& file, const RecordViewCL& record, bool isPlain,
    std::vector<NamedPictureCL>& pictures, FindingsCL& findings);
void checkRanges(int kind, const RecordViewCL& record, FindingsCL& findings);
void checkEntries(FileReadingCL& file, PicturesCL& pictures, FindingsCL& findings); // Of secondary sections.
void checkLists(FileReadingCL& file, FindingsCL& findings);
void checkIds(FileReadingCL& file, const CheckedControlsTP& controls, const std::vector<ArrowsCL>& arrows,
    FindingsCL& findings);
void checkBindings(FileReadingCL& file, const CheckedControlsTP& controls, FindingsCL& findings);
void checkPlaces(FileReadingCL& file, const StackTP& stack, FindingsCL& findings);
// Only where a window system is.
void checkCaptions(FileReadingCL& file, const CheckedControlsTP& controls, const TranslationCL& translation,
    FindingsCL& findings);
void checkOrder(
    FileReadingCL& file, const CheckedControlsTP& controls, const StackTP& stack, FindingsCL& findings);
