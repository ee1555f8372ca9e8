#pragma once
#include "baselib/file_text.h"
#include "check_messages.h"
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <memory_resource>
#include <set>
#include <string>
#include <string_view>
#include <vector>

enum class Says : std::uint16_t
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

// The texts of a finding: {0}, {1}, ... of its message. They lie in a pool, one behind the other.
struct DetailsCL
{
    const char* packed { nullptr }; // Of each its length, then its bytes.
    std::size_t count { 0 };
};

// One finding in a file. Small: there may be very many.
struct FindingCL
{
    const char* packed; // See DetailsCL.
    std::uint32_t offset;
    Says says;
    std::uint16_t count;

    std::vector<std::string_view> DetailsM() const; // UTF-8.
    std::string TextM(Language language) const;
    bool operator<(const FindingCL& other) const
    {
        return offset != other.offset ? offset < other.offset : says < other.says;
    }
};

// The findings of one file. Copies share the texts of their findings.
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
    void AddM(Says says, std::size_t offset, std::initializer_list<std::string_view> details = {})
    {
        AddPackedM(says, offset, PackM(details));
    }
    DetailsCL PackM(std::initializer_list<std::string_view> details);
    void AddPackedM(Says says, std::size_t offset, const DetailsCL& details) // Several may have the same.
    {
        list_.push_back({ details.packed, static_cast<std::uint32_t>(offset), says,
            static_cast<std::uint16_t>(details.count) });
    }
    FindingsCL BeginOthersM() const // None yet, of the same file: TakeM can take them.
    {
        FindingsCL others(*this);
        others.list_.clear();
        return others;
    }
    void TakeM(const FindingsCL& other, std::size_t begin, std::size_t end) // Some of the list of another.
    {
        list_.insert(list_.end(), other.list_.data() + begin, other.list_.data() + end);
    }
    void AddPictureM(const std::string& name) { pictures_.insert(name); }
    const std::set<std::string>& PicturesM() const
    {
        return pictures_;
    }             // Those on this machine, as named: GBK.
    void SortM(); // In the order of the file, each once.
    const std::vector<FindingCL>& ListM() const { return list_; }
    PlaceCL PlaceM(const FindingCL& finding) const { return text_->PlaceM(finding.offset); }
    std::size_t CountM(Severity severity) const;
    bool IsFaultyM(bool isStrict) const // For the exit code.
    {
        return (isStrict && !list_.empty()) || CountM(Severity::Error) > 0;
    }
    std::string TextM(Language language, bool withWarnings) const; // A line each.
    void PrintM(Language language) const; // The same with warnings, on standard output.

private:
    void appendLineM(std::string& text, const FindingCL& finding, Language language) const;

    std::string file_; // As the user named it.
    std::shared_ptr<const FileTextCL> text_;
    std::shared_ptr<std::pmr::monotonic_buffer_resource> pool_ {
        std::make_shared<std::pmr::monotonic_buffer_resource>()
    };
    std::vector<FindingCL> list_;
    std::set<std::string> pictures_;
};

// Printed on standard output.
void printFindings(const std::vector<FindingsCL>& files, Language language);
void printFindingsAsJson(const std::vector<FindingsCL>& files, Language language);
void printFindingsAsSarif(const std::vector<FindingsCL>& files, Language language);
