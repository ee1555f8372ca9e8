#include <panelkit/panelkit.h>

namespace ValuesPage {

void print(int number);

void readAndSet(DuBasicDialogCL& dialog)
{
    //@ docs/values.md cpp 1
}

int convert(DialogValuesCL& values, const char* fromFile)
{
    //@ docs/values.md cpp 2
    return needed;
}

std::size_t keep(DuBasicDialogCL& dialog)
{
    //@ docs/values.md cpp 3
    return misfits.size();
}

} // namespace ValuesPage

namespace ChinesePage {

void print(int number);

void readAndSet(DuBasicDialogCL& dialog)
{
    //@ docs/zh-CN/developer-guide.md cpp 3
}

std::size_t keep(DuBasicDialogCL& dialog)
{
    //@ docs/zh-CN/developer-guide.md cpp 4
    return misfits.size();
}

void goToOwnFolder()
{
    //@ docs/zh-CN/developer-guide.md cpp 5
}

} // namespace ChinesePage
