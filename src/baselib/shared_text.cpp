#include "baselib/file_text.h"
#include "baselib/io.h"
#include <cstring>

void SharedTextCL::OpenM(VrIOCL& io, const char* path)
{
    const bool isSamePath = path != nullptr && std::strcmp(path, path_.TextM()) == 0;
    if (isFresh_ && isSamePath) {
        io.OpenM(text_, path);
        return;
    }
    io.OpenM(path, "r");
    const std::shared_ptr<const FileTextCL>& read = io.FileTextM();
    if (isSamePath && text_ != nullptr && read != nullptr
        && text_->CutM({ 0, text_->SizeM() }) == read->CutM({ 0, read->SizeM() })) {
        io.OpenM(text_, path); // It knows where its headers are.
    } else {
        text_ = read;
        path_.SetM(path);
    }
    isFresh_ = true;
}
