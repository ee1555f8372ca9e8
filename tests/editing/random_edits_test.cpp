// Edits by chance: after each one the file is read as it was, but for what was meant, and has the same bytes
// but for those. PANELKIT_EDITS says how many; the same number gives the same edits everywhere.
#include "baselib/number_text.h"
#include "editing/description_editor.h"
#include "support/description_files.h"
#include "support/random_description.h"
#include "support/read_model.h"
#include "support/sound_description.h"
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>

namespace {

int editsWanted()
{
    const char* const wanted = std::getenv("PANELKIT_EDITS");
#if defined(_WIN32) || defined(__SANITIZE_ADDRESS__)
    constexpr int Usual = 1000; // Where all is slower.
#else
    constexpr int Usual = 10000;
#endif
    return wanted != nullptr ? std::atoi(wanted) : Usual;
}

bool isBlankByte(char byte)
{
    return slIsBlank(byte);
}

std::string solid(std::string text)
{
    text.erase(std::remove_if(text.begin(), text.end(), isBlankByte), text.end());
    return text;
}

bool isNumber(const std::string& text)
{
    int number = 0;
    return !text.empty()
        && slReadInt(text.data(), text.data() + text.size(), &number) == text.data() + text.size();
}

// What a text is read as by a field of that form.
std::string readAs(const ValueFormCL& form, const std::string& text)
{
    switch (form.type) {
    case IntegerType:
        return std::to_string(std::atoi(text.c_str()));
    case RealType:
        return realText(std::strtof(text.c_str(), nullptr));
    default:
        return (text == "NULL"
                   && (form.form.nullWord == NullWord::Empty || form.form.nullWord == NullWord::UpperEmpty))
                || (text == "null" && form.form.nullWord == NullWord::Empty)
            ? ""
            : text;
    }
}

const GrammarCL& grammarAt(int grammar)
{
    return slGrammars()[static_cast<std::size_t>(grammar)];
}

bool hasIdField(int grammar, const char* name)
{
    const char* const field = grammarAt(grammar).idField;
    return field != nullptr && std::strcmp(field, name) == 0;
}

bool hasControls(int grammar)
{
    return grammarAt(grammar).owner == nullptr && hasIdField(grammar, "function_id");
}

// One file, the edits of it, and what each is to make of it.
class EditingCL
{
public:
    EditingCL(const std::string& bytes, unsigned seed)
        : random_(seed)
        , editor_(bytes)
        , bytes_(bytes)
        , model_(modelOf(bytes))
        , shown_(shownOf(bytes))
    {
    }

    void EditM()
    {
        const int grammar = someSectionM();
        switch (random_.BelowM(12)) {
        case 0:
        case 1:
            insertM(random_.ChanceM(20) ? 2 + random_.BelowM(static_cast<int>(model_.size()) - 2) : grammar);
            break;
        case 2:
        case 3:
            deleteM(grammar);
            break;
        case 4:
        case 5:
            moveM(grammar);
            break;
        case 6:
            duplicateM(grammar);
            break;
        case 7:
            renameM(grammar);
            break;
        default:
            setM(grammar);
        }
        if (HasFailedM()) {
            return;
        }
        if (random_.ChanceM(10)) {
            const std::string now(editor_.BytesM());
            const bool isStep = !editor_.ChangesM().empty();
            if (isStep) {
                ASSERT_TRUE(editor_.UndoM());
                ASSERT_EQ(editor_.BytesM(), before_);
                ASSERT_TRUE(editor_.RedoM());
                ASSERT_EQ(editor_.BytesM(), now);
            }
        }
    }
    bool HasFailedM() const { return testing::Test::HasFailure(); }
    int DoneM() const { return done_; }
    const DescriptionEditorCL& EditorM() const { return editor_; }
    void UndoAllM(const std::string& original)
    {
        const std::string last(editor_.BytesM());
        while (editor_.UndoM()) { }
        EXPECT_EQ(editor_.BytesM(), original);
        while (editor_.RedoM()) { }
        EXPECT_EQ(editor_.BytesM(), last);
    }

private:
    int recordsM(int grammar) const
    {
        return static_cast<int>(model_[static_cast<std::size_t>(grammar)].size());
    }
    std::vector<ModelRecordTP>& sectionM(int grammar) { return model_[static_cast<std::size_t>(grammar)]; }
    ModelRecordTP& recordM(int grammar, int record)
    {
        return sectionM(grammar)[static_cast<std::size_t>(record)];
    }
    static ModelValueCL* valueM(ModelRecordTP& record, const std::string& field, int part = 0)
    {
        for (ModelValueCL& value : record) {
            if (value.field == field && value.part == part) {
                return &value;
            }
        }
        return nullptr;
    }
    int numberM(int grammar, int record, const char* field)
    {
        const ModelValueCL* const value = valueM(recordM(grammar, record), field);
        return value != nullptr ? std::atoi(value->text.c_str()) : 0;
    }
    int someSectionM()
    {
        std::vector<int> filled;
        for (std::size_t i = DialogGrammar; i < model_.size(); ++i) {
            if (!model_[i].empty()) {
                filled.push_back(static_cast<int>(i));
            }
        }
        return filled[static_cast<std::size_t>(random_.BelowM(static_cast<int>(filled.size())))];
    }
    int flagsM(int grammar)
    {
        const SeenSectionCL& section = editor_.SectionsM().AtM(grammar);
        if (grammarAt(grammar).head != HeadKind::Signed || grammarAt(grammar).owner != nullptr) {
            return 0;
        }
        const auto isNegative = [&](SpanCL span) { return !span.EmptyM() && bytes_[span.begin] == '-'; };
        return (isNegative(section.head.commentCount) ? HasShowCondition : 0)
            | (isNegative(section.head.countSpan) ? HasDescription : 0);
    }
    std::vector<ValueFormCL> formsM(int grammar, int record)
    {
        std::vector<NamedTextCL> given;
        if (const ModelValueCL* const type = valueM(recordM(grammar, record), "data_type")) {
            given.push_back({ "data_type", 0, type->text });
        }
        return slFormsOf(grammarAt(grammar), flagsM(grammar), given);
    }
    std::string solidRecordM(int grammar, int record) const
    {
        const SeenSectionCL& section = editor_.SectionsM().AtM(grammar);
        return solid(bytes_.substr(
            section.FirstM(record)->begin, (section.EndM(record) - 1)->end - section.FirstM(record)->begin));
    }
    int freshIdM() { return editor_.FreeIdM(random_.BelowM(5000)); }

    void setM(int grammar)
    {
        const int record = random_.BelowM(recordsM(grammar));
        const std::vector<ValueFormCL> forms = formsM(grammar, record);
        const ValueFormCL& form
            = forms[static_cast<std::size_t>(random_.BelowM(static_cast<int>(forms.size())))];
        const std::string field = form.field;
        std::string text = random_.TextForM(form);
        if (field == "data_type") {
            text = std::to_string(1 + random_.BelowM(3));
        } else if (form.isId) {
            text = std::to_string(freshIdM());
        }
        const bool isUnknownType
            = field == "data_type" && slFormsOf(grammarAt(grammar), 0, { { field, 0, text } }).empty();
        if (isUnknownType || random_.ChanceM(3)) {
            text = isUnknownType ? text : form.type == TextType ? " " + text : "z" + text;
            refusedM(editor_.SetM({ { grammarAt(grammar).header, record }, form.field, form.part }, text),
                EditResult::BadValue);
            return;
        }
        const SpanCL span = editor_.SectionsM().AtM(grammar).FindM(record, form.field, form.part)->SpanM();
        const SpanCL whole { editor_.SectionsM().AtM(grammar).FirstM(record)->begin,
            (editor_.SectionsM().AtM(grammar).EndM(record) - 1)->end };
        const std::vector<int> touched { idOfM(grammar, record) };
        ModelRecordTP& model = recordM(grammar, record);
        ModelValueCL& value = *valueM(model, field, form.part);
        if (value.text[0] == 'F' || value.text == "off") {
            setColourM(model, value, text);
        } else if (field.find("colour") != std::string::npos
            || form.field == std::string_view("background")) {
            value.text
                = form.type == TextType ? readAs(form, text) : std::to_string(std::atoi(text.c_str()) & 0xFF);
        } else {
            value.text = readAs(form, text);
        }
        if (field == "data_type") { // What is of another type now may become its default.
            const std::vector<ValueFormCL> now = formsM(grammar, record);
            for (std::size_t i = 0; i < now.size(); ++i) {
                model[i].text = now[i].type != forms[i].type ? "*" : model[i].text;
            }
        }
        const EditResult result
            = editor_.SetM({ { grammarAt(grammar).header, record }, form.field, form.part }, text);
        if (field == "data_type" && result == EditResult::Misread) {
            resetM(); // The next record would have to begin another line.
            return;
        }
        doneM(result);
        for (const TextChangeCL& change : editor_.ChangesM()) {
            if (field == "data_type") {
                EXPECT_GE(change.span.begin, whole.begin);
                EXPECT_LE(change.span.end, whole.end);
            } else {
                EXPECT_EQ(change.span.begin, span.begin);
                EXPECT_EQ(change.span.end, span.end);
                EXPECT_EQ(change.text, text);
            }
        }
        checkOthersM(grammar, record, touched);
    }
    void setColourM(ModelRecordTP& record, ModelValueCL& value, const std::string& text)
    {
        const int number = std::atoi(text.c_str());
        const bool turns = value.part == 0 && (value.text == "off") != (number < 0);
        for (int part = 0; turns && part < 3; ++part) {
            valueM(record, value.field, part)->text = number < 0 ? "off" : "*";
        }
        if (value.text != "off") {
            value.text = "F" + std::to_string(number & 0xFF);
        }
    }

    // The id by which a dialog knows what a record belongs to.
    int idOfM(int grammar, int record)
    {
        const char* const field = grammarAt(grammar).idField;
        if (field != nullptr) {
            return numberM(grammar, record, field);
        }
        const int buttons = slGrammarOf(NewRotateBtnHeader);
        const int button = grammar == DialogGrammar ? -1 : numberM(grammar, record, "button");
        return button >= 0 && button < recordsM(buttons) ? numberM(buttons, button, "function_id") : -1;
    }

    // A change of one record changes no other control that a dialog is given.
    void checkOthersM(int grammar, int record, std::vector<int> ids)
    {
        if (record < recordsM(grammar)) {
            ids.push_back(idOfM(grammar, record));
        }
        const ShownDialogCL before = shown_;
        shown_ = shownOf(bytes_);
        const auto others = [&ids](const ShownDialogCL& shown) {
            std::string all;
            for (const ShownControlCL& control : shown.controls) {
                all += std::find(ids.begin(), ids.end(), control.id) == ids.end() ? control.text + "\n" : "";
            }
            return all;
        };
        EXPECT_EQ(others(shown_), others(before));
    }

    void insertM(int grammar)
    {
        const int before = random_.BelowM(recordsM(grammar) + 1);
        if (grammar == DialogGrammar) {
            refusedM(editor_.InsertM({ grammarAt(grammar).header, 0 }), EditResult::NoSuchPlace);
            return;
        }
        std::vector<NamedTextCL> given;
        const std::vector<ValueFormCL> forms = random_.FormsM(grammarAt(grammar), flagsM(grammar), &given);
        ModelRecordTP record;
        for (const ValueFormCL& form : forms) {
            record.push_back({ form.field, form.part, "*" });
            if (std::strcmp(form.field, "data_type") == 0) {
                record.back().text = form.text;
            } else if (random_.ChanceM(60) && !(form.isId && hasControls(grammar))) {
                given.push_back({ form.field, form.part, random_.TextForM(form) });
                const bool isColour = std::string_view(form.field).find("colour") != std::string_view::npos
                    || (form.type == IntegerType && form.field == std::string_view("background"));
                record.back().text = isColour ? "*" : readAs(form, given.back().text);
            }
        }
        const bool isThere = editor_.SectionsM().AtM(grammar).IsThereM();
        sectionM(grammar).insert(sectionM(grammar).begin() + before, record);
        renumberM(grammar, [before](int at) { return at >= before ? at + 1 : at; });
        doneM(editor_.InsertM({ grammarAt(grammar).header, before }, given));
        if (HasFailedM()) {
            return;
        }
        if (isThere) {
            const std::string added = addedM();
            const std::string written = solidRecordM(grammar, before);
            EXPECT_TRUE(added == written || added == "0" + written) << added;
        }
        EXPECT_EQ(removedM(), "");
        recordM(grammar, before)
            = modelOf(bytes_)[static_cast<std::size_t>(grammar)][static_cast<std::size_t>(before)];
        if (isThere) { // Else entries that belonged to nothing may find their control.
            checkOthersM(grammar, before, {});
        } else {
            shown_ = shownOf(bytes_);
        }
    }

    void deleteM(int grammar)
    {
        const int record = random_.BelowM(recordsM(grammar));
        if (grammar == DialogGrammar) {
            refusedM(editor_.DeleteM({ grammarAt(grammar).header, 0 }), EditResult::NoSuchPlace);
            return;
        }
        const int id = idOfM(grammar, record);
        std::map<std::size_t, std::string> gone; // By the places of the records.
        const SeenSectionsCL& seen = editor_.SectionsM();
        gone[seen.AtM(grammar).FirstM(record)->begin] = solidRecordM(grammar, record);
        for (const auto& [other, entry] : dependantsM(grammar, record)) {
            gone[seen.AtM(other).FirstM(entry)->begin] = solidRecordM(other, entry);
        }
        const auto dependants = dependantsM(grammar, record);
        for (auto one = dependants.rbegin(); one != dependants.rend(); ++one) {
            sectionM(one->first).erase(sectionM(one->first).begin() + one->second);
        }
        sectionM(grammar).erase(sectionM(grammar).begin() + record);
        renumberM(grammar, [record](int at) { return at > record ? at - 1 : at; });
        doneM(editor_.DeleteM({ grammarAt(grammar).header, record }));
        std::string all;
        for (const auto& [place, text] : gone) {
            all += text;
        }
        EXPECT_EQ(removedM(), all);
        EXPECT_EQ(addedM(), "");
        if (hasControls(grammar)) {
            ShownDialogCL expected = shown_;
            expected.controls.erase(placeOfM(expected, grammar, record));
            if (!dependants.empty() || countOfIdM(id) == 0) {
                const std::string begin = "control=" + std::to_string(id) + " ";
                expected.relations.erase(std::remove_if(expected.relations.begin(), expected.relations.end(),
                                             [&](const std::string& one) {
                                                 return countOfIdM(id) == 0 && one.rfind(begin, 0) == 0;
                                             }),
                    expected.relations.end());
            }
            checkShownM(expected);
        } else {
            checkOthersM(grammar, recordsM(grammar), { id });
        }
    }

    void moveM(int grammar)
    {
        const int record = random_.BelowM(recordsM(grammar));
        const int before = random_.BelowM(recordsM(grammar) + 1);
        if (grammar == DialogGrammar) {
            refusedM(editor_.MoveM({ grammarAt(grammar).header, 0 }, before), EditResult::NoSuchPlace);
            return;
        }
        const std::string text = solidRecordM(grammar, record);
        const int id = idOfM(grammar, record);
        const int to = before > record ? before - 1 : before;
        std::vector<ModelRecordTP>& section = sectionM(grammar);
        const ModelRecordTP moved = section[static_cast<std::size_t>(record)];
        section.erase(section.begin() + record);
        section.insert(section.begin() + to, moved);
        renumberM(grammar, [&](int at) {
            return at == record           ? to
                : record < at && at <= to ? at - 1
                : to <= at && at < record ? at + 1
                                          : at;
        });
        doneM(editor_.MoveM({ grammarAt(grammar).header, record }, before));
        EXPECT_EQ(removedM(), to == record ? "" : text);
        EXPECT_EQ(addedM(), to == record ? "" : text);
        if (hasControls(grammar)) {
            ShownDialogCL expected = shown_;
            const auto place = placeOfM(expected, grammar, record);
            const ShownControlCL control = *place;
            expected.controls.erase(place);
            const int shift = to - record;
            expected.controls.insert(expected.controls.begin()
                    + (placeOfM(shown_, grammar, record) - shown_.controls.begin()) + shift,
                control);
            checkShownM(expected);
        } else {
            checkOthersM(grammar, recordsM(grammar), { id });
        }
    }

    void duplicateM(int grammar)
    {
        const int record = random_.BelowM(recordsM(grammar));
        if (grammar == DialogGrammar) {
            refusedM(editor_.DuplicateM({ grammarAt(grammar).header, 0 }, 1), EditResult::NoSuchPlace);
            return;
        }
        const int id = idOfM(grammar, record);
        if (hasControls(grammar) && random_.ChanceM(5)) {
            refusedM(editor_.DuplicateM({ grammarAt(grammar).header, record }, id), EditResult::IdTaken);
            return;
        }
        const int newId = freshIdM();
        const auto dependants = dependantsM(grammar, record);
        std::vector<ModelRecordTP>& section = sectionM(grammar);
        ModelRecordTP copy = section[static_cast<std::size_t>(record)];
        if (hasControls(grammar)) {
            for (const ValueFormCL& form : slFormsOf(grammarAt(grammar), flagsM(grammar), {})) {
                ModelValueCL* const value = form.isId ? valueM(copy, form.field) : nullptr;
                if (value != nullptr && value->text != "0") {
                    value->text = form.field == std::string_view("function_id") ? std::to_string(newId) : "*";
                }
            }
            valueM(copy, "function_id")->text = std::to_string(newId);
        }
        section.insert(section.begin() + record + 1, copy);
        renumberM(grammar, [record](int at) { return at > record ? at + 1 : at; });
        std::map<int, std::vector<ModelRecordTP>> copies;
        std::map<int, int> behind;
        for (const auto& [other, entry] : dependants) {
            ModelRecordTP one = recordM(other, entry);
            const char* const field = grammarAt(other).idField;
            valueM(one, field != nullptr ? field : "button")->text
                = std::to_string(field != nullptr ? newId : record + 1);
            copies[other].push_back(one);
            behind[other] = entry + 1;
        }
        for (const auto& [other, records] : copies) {
            sectionM(other).insert(sectionM(other).begin() + behind[other], records.begin(), records.end());
        }
        doneM(editor_.DuplicateM({ grammarAt(grammar).header, record }, newId));
        EXPECT_EQ(removedM(), "");
        if (HasFailedM()) {
            return;
        }
        recordM(grammar, record + 1)
            = modelOf(bytes_)[static_cast<std::size_t>(grammar)][static_cast<std::size_t>(record + 1)];
        checkOthersM(grammar, record, { newId });
        if (hasControls(grammar)) {
            std::string original = placeOfM(shown_, grammar, record)->text;
            std::string twin = placeOfM(shown_, grammar, record + 1)->text;
            const std::size_t arrows = twin.find("spin_function_id=");
            if (arrows != std::string::npos) {
                original.erase(original.find("spin_function_id="),
                    original.find(' ', original.find("spin_function_id="))
                        - original.find("spin_function_id="));
                twin.erase(arrows, twin.find(' ', arrows) - arrows);
            }
            const std::string was = "function_id=" + std::to_string(id);
            original.replace(original.find(was), was.size(), "function_id=" + std::to_string(newId));
            if (isFirstM(grammar, record)) {
                EXPECT_EQ(twin, original);
            }
        }
    }

    void renameM(int grammar)
    {
        const int record = random_.BelowM(recordsM(grammar));
        if (!hasControls(grammar)) {
            refusedM(
                editor_.RenameM({ grammarAt(grammar).header, record }, freshIdM()), EditResult::NoSuchPlace);
            return;
        }
        const int id = idOfM(grammar, record);
        const int newId = freshIdM();
        for (const auto& [other, entry] : dependantsM(grammar, record)) {
            if (grammarAt(other).idField != nullptr) {
                valueM(recordM(other, entry), grammarAt(other).idField)->text = std::to_string(newId);
            }
        }
        ShownDialogCL expected = shown_;
        const bool isOnly = countOfIdM(id) == 1;
        const bool isFirst = isFirstM(grammar, record);
        const auto control = placeOfM(expected, grammar, record);
        const std::string was = "function_id=" + std::to_string(id);
        control->text.replace(control->text.find(was), was.size(), "function_id=" + std::to_string(newId));
        control->id = newId;
        for (std::string& relation : expected.relations) {
            const std::string begin = "control=" + std::to_string(id) + " ";
            if (isOnly && relation.rfind(begin, 0) == 0) {
                relation = "control=" + std::to_string(newId) + " " + relation.substr(begin.size());
            }
        }
        valueM(recordM(grammar, record), "function_id")->text = std::to_string(newId);
        doneM(editor_.RenameM({ grammarAt(grammar).header, record }, newId));
        EXPECT_EQ(removedM(), "");
        EXPECT_EQ(addedM(), "");
        if (isFirst) {
            checkShownM(expected);
        } else {
            shown_ = shownOf(bytes_);
        }
    }

    bool isFirstM(int grammar, int record)
    {
        for (int other = 0; other < record; ++other) {
            if (numberM(grammar, other, "function_id") == numberM(grammar, record, "function_id")) {
                return false;
            }
        }
        return true;
    }
    int countOfIdM(int id)
    {
        int count = 0;
        for (std::size_t i = 0; i < model_.size(); ++i) {
            for (int record = 0; hasControls(static_cast<int>(i)) && record < recordsM(static_cast<int>(i));
                 ++record) {
                count += numberM(static_cast<int>(i), record, "function_id") == id ? 1 : 0;
            }
        }
        return count;
    }
    // Entries and relations of a control: grammars and places.
    std::vector<std::pair<int, int>> dependantsM(int grammar, int record)
    {
        std::vector<std::pair<int, int>> found;
        if (!hasControls(grammar)) {
            return found;
        }
        const int id = numberM(grammar, record, "function_id");
        for (std::size_t i = 0; i < model_.size(); ++i) {
            const auto other = static_cast<int>(i);
            const bool isRelation = hasIdField(other, "control");
            const bool isEntry = grammarAt(other).owner == grammarAt(grammar).header;
            for (int entry = 0; entry < recordsM(other); ++entry) {
                const bool isIts = isRelation ? countOfIdM(id) == 1 && numberM(other, entry, "control") == id
                    : !isEntry                ? false
                    : grammarAt(other).idField == nullptr
                    ? numberM(other, entry, "button") == record
                    : isFirstM(grammar, record) && numberM(other, entry, "function_id") == id;
                if (isIts) {
                    found.emplace_back(other, entry);
                }
            }
        }
        return found;
    }
    template <class FunctionTP> void renumberM(int grammar, FunctionTP&& placeOf)
    {
        const int pictures = slGrammarOf(NewRotateBtnBitmapHeader);
        if (grammar != slGrammarOf(NewRotateBtnHeader)) {
            return;
        }
        for (int entry = 0; entry < recordsM(pictures); ++entry) {
            ModelValueCL& button = *valueM(recordM(pictures, entry), "button");
            button.text = std::to_string(placeOf(std::atoi(button.text.c_str())));
        }
    }
    static std::vector<ShownControlCL>::iterator placeOfM(ShownDialogCL& shown, int grammar, int record)
    {
        auto at = shown.controls.begin();
        while (at->section != grammarAt(grammar).header) {
            ++at;
        }
        return at + record;
    }
    void checkShownM(const ShownDialogCL& expected)
    {
        shown_ = shownOf(bytes_);
        const auto all = [](const ShownDialogCL& shown) {
            std::string text;
            for (const ShownControlCL& control : shown.controls) {
                text += slGbkToUtf8(control.section.c_str()) + " " + control.text + "\n";
            }
            for (const std::string& relation : shown.relations) {
                text += relation + "\n";
            }
            return text;
        };
        EXPECT_EQ(all(shown_), all(expected));
    }

    // The edit must have been refused, and nothing be otherwise.
    void refusedM(EditResult result, EditResult wanted)
    {
        EXPECT_EQ(result, wanted);
        EXPECT_EQ(editor_.BytesM(), bytes_);
    }
    void resetM()
    {
        EXPECT_EQ(editor_.BytesM(), bytes_);
        model_ = modelOf(bytes_);
    }

    // The edit must have been done: the bytes are those with its changes, and are read as the model has it.
    void doneM(EditResult result)
    {
        ASSERT_EQ(result, EditResult::Done) << slGbkToUtf8(bytes_.c_str());
        ++done_;
        before_ = bytes_;
        bytes_ = editor_.BytesM();
        std::string made;
        std::size_t at = 0;
        for (const TextChangeCL& change : editor_.ChangesM()) {
            made.append(before_, at, change.span.begin - at).append(change.text);
            at = change.span.end;
        }
        made.append(before_, at, std::string::npos);
        ASSERT_EQ(made, bytes_);
        const ModelTP read = modelOf(bytes_);
        for (std::size_t i = 0; i < model_.size(); ++i) {
            ASSERT_EQ(read[i].size(), model_[i].size())
                << slGbkToUtf8(slGrammars()[i].header) << slGbkToUtf8(bytes_.c_str());
            for (std::size_t record = 0; record < read[i].size(); ++record) {
                expectSameM(model_[i][record], read[i][record], i, record);
            }
        }
    }
    void expectSameM(
        ModelRecordTP& expected, const ModelRecordTP& read, std::size_t grammar, std::size_t record)
    {
        ASSERT_EQ(read.size(), expected.size());
        for (std::size_t i = 0; i < read.size(); ++i) {
            ASSERT_EQ(read[i].field, expected[i].field);
            if (expected[i].text == "*") {
                expected[i].text = read[i].text;
            }
            ASSERT_EQ(read[i].text, expected[i].text)
                << slGbkToUtf8(slGrammars()[grammar].header) << " " << record << " " << read[i].field << "\n"
                << slGbkToUtf8(before_.c_str()) << "\n-----\n"
                << slGbkToUtf8(bytes_.c_str());
        }
    }
    // What the last edit took away and added, without blanks and without numbers that became others.
    std::string removedM() const
    {
        std::string all;
        for (const TextChangeCL& change : editor_.ChangesM()) {
            const std::string old = before_.substr(change.span.begin, change.span.end - change.span.begin);
            all += isNumber(old) && isNumber(change.text) ? "" : solid(old);
        }
        return all;
    }
    std::string addedM() const
    {
        std::string all;
        for (const TextChangeCL& change : editor_.ChangesM()) {
            const std::string old = before_.substr(change.span.begin, change.span.end - change.span.begin);
            all += isNumber(old) && isNumber(change.text) ? "" : solid(change.text);
        }
        return all;
    }

    SoundDescriptionCL random_;
    DescriptionEditorCL editor_;
    std::string bytes_;
    std::string before_;
    ModelTP model_;
    ShownDialogCL shown_;
    int done_ { 0 };
};

} // namespace

TEST(RandomEdits, ChangeWhatIsMeantAndNothingElse)
{
    std::vector<std::string> files;
    for (const std::string& path : descriptionFiles(PANELKIT_EXAMPLES)) {
        files.push_back(wholeFile(path));
    }
    files.push_back(wholeFile(PANELKIT_SAMPLES "/every_kind.dlg"));
    files.push_back(wholeFile(PANELKIT_SAMPLES "/two_kinds.dlg"));
    const int wanted = editsWanted();
    const int each = 50;
    int done = 0;
    for (int edits = 0, round = 0; edits < wanted; edits += each, ++round) {
        const auto seed = static_cast<unsigned>(round);
        const std::string file = round % 3 == 0 ? files[static_cast<std::size_t>(round / 3) % files.size()]
                                                : SoundDescriptionCL(seed).FileM();
        EditingCL editing(file, seed + 1);
        for (int i = 0; i < each; ++i) {
            editing.EditM();
            ASSERT_FALSE(HasFailure()) << "round " << round << ", edit " << i;
        }
        editing.UndoAllM(file);
        ASSERT_FALSE(HasFailure()) << "round " << round;
        done += editing.DoneM();
    }
    EXPECT_GT(done, wanted * 3 / 4); // The others were refused as they must be.
}

// Where sections don't read whole an edit may be refused, but it never does what isn't meant.
TEST(RandomEdits, OfBrokenFilesAreDoneOrLeaveThemAlone)
{
    constexpr int Each = 40;
    int done = 0;
    for (unsigned seed = 0; seed < static_cast<unsigned>(editsWanted() / Each / 2); ++seed) {
        RandomDescriptionCL broken(seed);
        SoundDescriptionCL random(seed);
        const std::string file = broken.MutatedM(broken.FileM());
        DescriptionEditorCL editor(file);
        std::string bytes = file;
        for (int i = 0; i < Each; ++i) {
            const auto grammar
                = static_cast<std::size_t>(random.BelowM(static_cast<int>(slGrammars().size())));
            const char* const header = slGrammars()[grammar].header;
            const int record = random.BelowM(6) - 1;
            const std::vector<ValueFormCL> forms = slFormsOf(slGrammars()[grammar], 0, {});
            EditResult result = EditResult::NoSuchPlace;
            switch (random.BelowM(7)) {
            case 0:
                result = editor.InsertM({ header, record });
                break;
            case 1:
                result = editor.DeleteM({ header, record });
                break;
            case 2:
                result = editor.MoveM({ header, record }, random.BelowM(6) - 1);
                break;
            case 3:
                result = editor.DuplicateM({ header, record }, random.BelowM(4000));
                break;
            case 4:
                result = editor.RenameM({ header, record }, random.BelowM(4000));
                break;
            case 5:
                result = editor.AddSectionM(header);
                break;
            default:
                if (!forms.empty()) {
                    const ValueFormCL& form
                        = forms[static_cast<std::size_t>(random.BelowM(static_cast<int>(forms.size())))];
                    result
                        = editor.SetM({ { header, record }, form.field, form.part }, random.TextForM(form));
                }
            }
            const bool isChanged = result == EditResult::Done && !editor.ChangesM().empty();
            ASSERT_EQ(isChanged, editor.BytesM() != bytes) << "file " << seed << ", edit " << i;
            if (isChanged) {
                const std::string now(editor.BytesM());
                ASSERT_EQ(slWithChanges(bytes, editor.ChangesM()), now);
                ASSERT_TRUE(editor.UndoM());
                ASSERT_EQ(editor.BytesM(), bytes) << "file " << seed << ", edit " << i;
                ASSERT_TRUE(editor.RedoM());
                bytes = now;
                ++done;
            }
        }
    }
    EXPECT_GT(done, editsWanted() / 20);
}
