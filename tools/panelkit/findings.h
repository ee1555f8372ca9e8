#pragma once
#include "baselib/file_text.h"
#include "check_messages.h"
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <vector>

enum class Says
{
#define PANELKIT_NAME(name, code, severity, english, chinese) name,
    PANELKIT_MESSAGES(PANELKIT_NAME)
#undef PANELKIT_NAME
};

enum class Severity
{
    Error,
    Warning
};

enum class Language
{
    English,
    Chinese
};

struct MessageCL
{
    const char* code;
    Severity severity;
    const char* english;
    const char* chinese;

    const char* TextM(Language language) const { return language == Language::Chinese ? chinese : english; }
};

const std::vector<MessageCL>& allMessages();
inline const MessageCL& messageOf(Says says)
{
    return allMessages()[static_cast<std::size_t>(says)];
}

// One finding in a file.
struct FindingCL
{
    Says says;
    std::size_t offset;
    std::vector<std::string> details; // UTF-8, for {0}, {1}, ...
    PlaceCL place {};

    std::string TextM(Language language) const;
};

// The findings of one file.
class FindingsCL
{
public:
    FindingsCL() = default;
    FindingsCL(std::string file, std::shared_ptr<const FileTextCL> text)
        : file_(std::move(file))
        , text_(std::move(text))
    {
    }
    const std::string& FileM() const { return file_; }
    void AddM(Says says, std::size_t offset, std::vector<std::string> details = {})
    {
        list_.push_back({ says, offset, std::move(details) });
    }
    void TakeM(FindingsCL& other, std::size_t begin, std::size_t end) // Moves some of the list of another.
    {
        const auto from = other.list_.begin();
        list_.insert(list_.end(), std::make_move_iterator(from + static_cast<std::ptrdiff_t>(begin)),
            std::make_move_iterator(from + static_cast<std::ptrdiff_t>(end)));
    }
    void AddPictureM(const std::string& name) { pictures_.insert(name); }
    const std::set<std::string>& PicturesM() const
    {
        return pictures_;
    }             // Those on this machine, as named: GBK.
    void SortM(); // In the order of the file, each with its place, each once.
    const std::vector<FindingCL>& ListM() const { return list_; }
    std::size_t CountM(Severity severity) const;
    bool IsFaultyM(bool isStrict) const // For the exit code.
    {
        return CountM(Severity::Error) > 0 || (isStrict && !list_.empty());
    }
    std::string TextM(Language language, bool withWarnings) const; // A line each.

private:
    std::string file_; // As the user named it.
    std::shared_ptr<const FileTextCL> text_;
    std::vector<FindingCL> list_;
    std::set<std::string> pictures_;
};

// Printed on standard output.
void printFindings(const std::vector<FindingsCL>& files, Language language);
void printFindingsAsJson(const std::vector<FindingsCL>& files, Language language);
void printFindingsAsSarif(const std::vector<FindingsCL>& files, Language language);
