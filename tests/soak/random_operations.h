#pragma once
#include "dialog/basic_dialog.h"
#include "form/form.h"
#include "soak/control_operations.h"
#include "support/description.h"
#include <memory>

// What an application has while operations by chance go on: a host with its own window or in one of the
// application's, a dialog of the C interface, a form. Each operation is one call of the public interface.
class RandomOperationsCL
{
public:
    struct OperationCL
    {
        const char* name;
        int weight; // How often it comes, beside the others.
        void (*run)(RandomOperationsCL& world);
    };

    // sections: of the description that all of them have. It says ids from 11 to 51.
    RandomOperationsCL(unsigned seed, const std::string& sections, const std::string& otherSections);
    RandomOperationsCL(const RandomOperationsCL&) = delete;
    RandomOperationsCL& operator=(const RandomOperationsCL&) = delete;
    ~RandomOperationsCL();

    const OperationCL& ChooseM(); // The next one, to be run on this.
    const PickedArgumentsCL& PickM() const { return pick_; }

private:
    // A host that lets anybody call what an application's class may.
    class HostCL : public DuBasicDialogCL
    {
    public:
        using DuBasicDialogCL::initItemRelationM;
    };
    class OwnWindowCL : public CWnd
    {
    public:
        OwnWindowCL()
        {
            CreateEx(0, "Static", "own", WS_POPUP | WS_VISIBLE, 50, 40, 480, 300, nullptr, nullptr);
        }
    };

    void addHostM();
    void addValuesM();
    void addFormM();
    int idM(); // Of a control that is there, or that is not.
    const char* fileM() { return pick_.ChanceM(90) ? file_.path() : otherFile_.path(); }
    void buildHostM();
    void openFormsM();
    template <class RowTP> void callControlM(int id);

    PickedArgumentsCL pick_;
    DescriptionFileCL file_;
    DescriptionFileCL otherFile_;
    OwnWindowCL window_;
    std::unique_ptr<HostCL> host_;
    panelkit_dialog* dialog_ { nullptr };
    panelkit_dialog* gone_ { nullptr }; // The handle of one that is destroyed.
    panelkit::Form form_;
    std::vector<OperationCL> operations_;
    int weights_ { 0 };
};
