#pragma once
#include "dialog/translation.h"
#include "file_reading.h"
#include "findings.h"
#include "record_view.h"
#include <filesystem>
#include <unordered_map>

// One control of the file, as the checks across records need it.
struct CheckedControlCL
{
    int kind;             // Its KindCode; 0 for a new rotate button.
    const char* kindName; // As dump has it.
    int grammar;          // Its section,
    int record;           // and its place there.
    bool isStacked;       // Its window index counts.
    int place;            // In the order of collection.
    int windowIndex;
    int id;
    int x, y, w, h;
    std::size_t idAt, indexAt, positionAt; // Offsets in the file.
    bool hasText { false };
    const CharArr* caption { nullptr }; // Of a kind that shows one; GBK,
    std::size_t captionAt { 0 };        // and where the file has it.
    bool isSunken { false };
    bool isReadOnly { false };
    bool isDefault { false };
    int group { 0 };
    int arrowsId { 0 }; // Of a spin edit; 0 for none.
    std::size_t arrowsAt { 0 };
    bool IsM(std::initializer_list<int> kinds) const
    {
        for (const int other : kinds) {
            if (kind == other) {
                return true;
            }
        }
        return false;
    }
    // Reaches from x to this, and from y to this; of a combo box only what shows while its list is closed.
    std::int64_t RightM() const { return std::int64_t { x } + w; }
    std::int64_t BottomM() const
    {
        constexpr int ComboHeight = 24;
        return std::int64_t { y } + (kind == ComboBoxCode && h > ComboHeight ? ComboHeight : h);
    }
};

// The pictures that a file names: looked at once each.
class PicturesCL
{
public:
    explicit PicturesCL(std::filesystem::path folder)
        : folder_(std::move(folder))
    {
    }
    void CheckM(const std::string& name, std::size_t offset, FindingsCL& findings); // GBK, as written.

private:
    enum class State
    {
        Good,
        Missing,
        Bad,
        Remote
    };
    State stateM(const std::string& name);
    std::filesystem::path findM(const std::string& name) const;

    std::filesystem::path folder_;
    std::unordered_map<std::string, State> states_;
};

using CheckedControlsTP = std::vector<CheckedControlCL>;

void checkValues(FileReadingCL& file, const RecordViewCL& record, PicturesCL& pictures, FindingsCL& findings);
void checkRanges(FileReadingCL& file, int kind, const RecordViewCL& record, FindingsCL& findings);
void checkEntries(FileReadingCL& file, PicturesCL& pictures, FindingsCL& findings); // Of secondary sections.
void checkLists(FileReadingCL& file, FindingsCL& findings);
void checkIds(FileReadingCL& file, const CheckedControlsTP& controls, FindingsCL& findings);
void checkBindings(
    FileReadingCL& file, const CheckedControlsTP& controls, PicturesCL& pictures, FindingsCL& findings);
void checkPlaces(FileReadingCL& file, const CheckedControlsTP& controls, FindingsCL& findings);
// Only where a window system is.
void checkCaptions(FileReadingCL& file, const CheckedControlsTP& controls, const TranslationCL& translation,
    FindingsCL& findings);
void checkOrder(FileReadingCL& file, const CheckedControlsTP& controls, FindingsCL& findings);
