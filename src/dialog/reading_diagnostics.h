#pragma once
#include "dialog/diagnostics.h"
#include "records/read_observer.h"
#include <set>
#include <string>

class VrIOCL;

// Tells a function what is wrong with a description file while a dialog reads it. A section that has slipped
// is told of once, where it begins to; `panelkit check` says more.
class PANELKIT_API ReadingDiagnosticsCL : public ReadObserverCL
{
public:
    // tell null: nobody is told. isOnce: what was told is not told again; otherwise each build tells anew.
    ReadingDiagnosticsCL(DiagnosticTP tell, void* context, bool isOnce)
        : tell_(tell)
        , context_(context)
        , isOnce_(isOnce)
    {
    }
    // A build of the dialog begins: what was told may be told anew, as the constructor says.
    void BeginBuildM();
    // Before a section of the file (GBK path, null is empty) is read from io; tells where the file could not
    // be opened.
    void WatchM(const char* file, VrIOCL& io);

    // What reading finds; the observed file calls it.
    void ValueM(const ValueSeenCL& value) override;
    void EntryDroppedM(const EntryDroppedCL& entry) override;
    void SectionM(const SectionSeenCL& section) override;

private:
    void tellM(const char* code, const SpanCL* span, const std::string& message);
    void checkPictureM(const ValueSeenCL& value);
    void checkNumberM(const ValueSeenCL& value);
    std::string cutM(SpanCL span) const { return std::string(text_->CutM(span)); }

    DiagnosticTP tell_;
    void* context_;
    bool isOnce_;
    std::string file_;
    std::shared_ptr<const FileTextCL> text_;
    const char* slipped_ { nullptr }; // The header of the section that did.
    std::set<std::string> told_;
    std::set<std::string> goodPictures_;
};
