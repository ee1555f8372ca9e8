// A description file to start from.
#include "baselib/gbk.h"
#include "commands.h"
#include "text_file.h"
#include <filesystem>

namespace {

const char* const StartText = R"([版本号]
1.0

[对话框]
3
一个可以运行的起点: 每一节先写记录数, 再写注释行数和注释, 然后是记录。
文本独占一行的余下部分; NULL 表示没有。窗口序号决定 Tab 键的次序。
左 上 / 宽 高 / 标题标志 / 标题 / 字体高度 窗口类型 边框类型 / 背景位图
120 80
330 176
1
新对话框
14 2 4
NULL

[标题]
1
2
对齐: 3 居中, 4 靠右, 其余靠左; 背景色: 红为负数则没有。
窗口序号 功能号 左 上 宽 高 对齐 / 文本 / 边框 背景色(红 绿 蓝)
       1   1001 16 20 64 20    4
名称:
0 -1 0 0

[单行文本]
1
2
类型: 1 整数, 2 实数, 3 文本; 对齐: 2 靠左, 3 居中, 4 靠右。
窗口序号 功能号 左 上  宽 高 类型 最小 最大 小数位 密码 对齐 / 初值 / 只读 边框 颜色(红 绿 蓝)
       2   1002 88 18 216 24    3    0   40      0    0    2
未命名
0 1 255 255 255

[多选按钮]
1
1
窗口序号 功能号 左 上  宽 高 选中 / 文本
       3   1003 88 54 216 20    1
下次打开时使用同一名称

[标准按钮]
2
2
功能号 1 是确定, 2 是取消; 默认按钮由回车键按下。
窗口序号 功能号  左  上 宽 高 / 文本 / 默认按钮
       4      1 120 100 88 28
确定
1
       5      2 216 100 88 28
取消
0
)";

} // namespace

int newCommand(const std::string& file, bool force)
{
    std::error_code error;
    if (!force && std::filesystem::exists(std::filesystem::u8path(file), error)) {
        return complain("'" + file + "' is already there (--force overwrites it)");
    }
    return writeWholeFile(file, slUtf8ToGbk(StartText)) ? 0 : CannotUse;
}
