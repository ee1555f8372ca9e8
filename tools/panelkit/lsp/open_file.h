#pragma once
#include "document.h"
#include "editing/text_changes.h"
#include "file_reading.h"
#include "findings.h"
#include <memory>

// What `check` knows of a text.
struct AnalysisCL
{
    std::shared_ptr<const FileTextCL> text;
    FindingsCL findings;
    std::unique_ptr<FileReadingCL> reading;
};

// A value of a record in a text; grammar -1: none.
struct ValueInTextCL
{
    int grammar { -1 };
    int record { -1 };
    const SeenValueCL* value { nullptr };
};

// One function id in a text: of a control, or of who names it.
struct IdUseCL
{
    ValueInTextCL place;
    int id;
    bool isControl;
};

// A text that is open in the editor, and what is wrong with it.
class OpenFileCL
{
public:
    OpenFileCL(std::string uri, std::string text, PositionCode code)
        : document_(std::move(uri), std::move(text), code)
    {
    }
    const DocumentCL& DocumentM() const { return document_; }
    DocumentCL& ChangeM() // To be changed: what was known of it is forgotten.
    {
        analysis_.reset();
        isTold_ = false;
        return document_;
    }
    const AnalysisCL& AnalysisM(); // Made anew when the text has changed.
    FileReadingCL& ReadingM() { return AnalysisM(), *analysis_->reading; }
    bool IsToldM() const { return isTold_; } // The client has the findings.
    void SetToldM() { isTold_ = true; }

    bool IsInSectionM(int grammar, std::size_t offset); // Of what the section has there, from its header on.
    int SectionAtM(std::size_t offset);                 // -1: none.
    ValueInTextCL ValueAtM(std::size_t offset);         // The value that reaches there.
    // Calls see(place) for each value that stands in its section.
    template <class SeeTP> void EachValueM(int grammar, SeeTP&& see)
    {
        const SeenSectionCL& section = ReadingM().SectionM(grammar);
        for (int record = 0; record < section.RecordsM(); ++record) {
            for (const SeenValueCL* value = section.FirstM(record); value != section.EndM(record); ++value) {
                if (value->end > value->begin && value->end <= section.regionEnd) {
                    see(ValueInTextCL { grammar, record, value });
                }
            }
        }
    }
    std::vector<IdUseCL> IdsM();
    int NumberM(const SeenValueCL& value);
    std::string TextOfM(int grammar, int record); // What a person reads of it, UTF-8; "" for nothing.

private:
    DocumentCL document_;
    std::unique_ptr<AnalysisCL> analysis_;
    bool isTold_ { false };
};

JsonTP textEdit(const OpenFileCL& file, SpanCL span, const std::string& text); // UTF-8.
JsonTP textEdits(const OpenFileCL& file, const TextChangesTP& changes);
SpanCL spanOf(const SeenValueCL& value);
