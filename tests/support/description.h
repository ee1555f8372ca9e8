#pragma once
#include "baselib/gbk.h"
#include "support/temp_file.h"

// A description file written in UTF-8 in the test and in GBK on the disk.
class DescriptionFileCL : public TempFile
{
public:
    explicit DescriptionFileCL(const std::string& utf8)
        : TempFile(slUtf8ToGbk(utf8), ".dlg")
    {
    }
};

// Both header sections: what every dialog needs.
inline const char* HeaderSections
    = "[版本号]\n1.0\n[对话框]\n0\n100 80\n420 260\n1\n参数设置\n14 2 4\nNULL\n";
