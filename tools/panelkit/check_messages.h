#pragma once

// All that `panelkit check` can say: its name in the program, the code, whether it is an error, and the
// message in English and in Chinese, with {0}, {1}, ... for what the finding adds. A code may have several
// messages; its first one also describes it.
// clang-format off
#define PANELKIT_MESSAGES(X) \
    X(FileIsUtf8, "encoding", Error, "the file is UTF-8, not GBK; panelkit convert makes it GBK", "文件是 UTF-8 编码, 不是 GBK; 请用 panelkit convert 转换") \
    X(FileIsUtf16, "encoding", Error, "the file is UTF-16, not GBK; panelkit convert makes it GBK", "文件是 UTF-16 编码, 不是 GBK; 请用 panelkit convert 转换") \
    X(NoGbkByte, "encoding", Error, "the byte {0} belongs to no GBK character; save the file as GBK (code page 936)", "字节 {0} 不属于任何 GBK 字符; 请将文件存为 GBK (代码页 936)") \
    X(NoGbkCharacter, "encoding", Error, "GBK has no character '{0}': the file can't hold it", "GBK 中没有字符 '{0}': 文件无法保存它") \
    X(ShownWrongly, "encoding", Error, "the editor shows this GBK file in another code: open it anew, as GBK", "编辑器以其他编码显示此 GBK 文件: 请以 GBK 编码重新打开") \
    X(EmptyFile, "empty-file", Error, "the file is empty", "文件是空的") \
    X(MissingSection, "missing-section", Error, "section {0} is missing: without it the dialog has no title, size and font", "缺少 {0} 节: 没有它对话框就没有标题、大小和字体") \
    X(UnknownSection, "unknown-section", Error, "section {0} is unknown; nearest is {1}", "未知的节 {0}; 最接近的是 {1}") \
    X(UnknownSectionFar, "unknown-section", Error, "section {0} is unknown", "未知的节 {0}") \
    X(DuplicateSection, "duplicate-section", Error, "section {0} stands in line {1} already: this one is never read", "{0} 节在第 {1} 行已有: 这一节不会被读取") \
    X(BadNumber, "bad-number", Error, "a number should stand here ({0}), not '{1}'", "此处应为数字 ({0}), 而不是 '{1}'") \
    X(NumberTooLarge, "bad-number", Error, "{1} is beyond the range of {0}; the limit is used", "{1} 超出 {0} 的范围; 将使用极限值") \
    X(NumberGoesOn, "bad-number", Error, "the number of {0} goes on with '{1}'", "{0} 的数字后面紧跟 '{1}'") \
    X(RecordSlip, "record-slip", Error, "'{1}' is no number ({0}); records lost behind it: {2}", "'{1}' 不是数字 ({0}); 其后 {2} 条记录因此丢失") \
    X(LineMissing, "record-slip", Error, "a line seems to be missing here ({0}); records lost behind it: {1}", "此处似乎缺少一行 ({0}); 其后 {1} 条记录因此丢失") \
    X(RecordInLine, "record-slip", Error, "a record begins in the middle of this line: something is missing or too much here; records lost behind it: {0}", "一条记录从这一行的中间开始: 此处缺少或多出内容; 其后 {0} 条记录因此丢失") \
    X(NumbersForText, "record-slip", Error, "a text should stand here ({0}), not numbers; records lost behind it: {1}", "此处应为文本 ({0}), 而不是数字; 其后 {1} 条记录因此丢失") \
    X(OtherLines, "record-slip", Error, "from here on the lines are not divided as in the other records; records lost behind it: {0}", "从此处起各行的划分与其他记录不同; 其后 {0} 条记录因此丢失") \
    X(BadCount, "bad-count", Error, "the count should be a number, not '{0}'", "数目应为数字, 而不是 '{0}'") \
    X(NoCount, "bad-count", Error, "the count is missing", "缺少数目") \
    X(CountTooLarge, "bad-count", Error, "the count {0} cannot be meant: the rest of the file is too short for it", "数目 {0} 不可能正确: 文件余下部分太短") \
    X(CountTooSmall, "bad-count", Error, "the count is {0}, but {1} records stand here", "数目为 {0}, 但此处有 {1} 条记录") \
    X(NegativeCount, "bad-count", Error, "the count {0} is below 0", "数目 {0} 小于 0") \
    X(BadCommentCount, "bad-count", Error, "the number of comment lines should stand here, not '{0}'", "此处应为注释行数, 而不是 '{0}'") \
    X(CommentsTooMany, "bad-count", Error, "the section has no {0} comment lines", "该节没有 {0} 行注释") \
    X(RecordInComments, "bad-count", Error, "this line counts as a comment but reads as a record", "这一行被当作注释, 但像是一条记录") \
    X(ShortSection, "short-section", Error, "the count is {0}, but the records end after {1}", "数目为 {0}, 但只有 {1} 条记录") \
    X(EntryMissing, "short-section", Error, "the count is {0}, but the records end after {1}; one seems to be missing here", "数目为 {0}, 但只有 {1} 条记录; 此处似乎缺少一条") \
    X(SectionEndsInRecord, "short-section", Error, "the section ends in the middle of record {0} ({1})", "该节在第 {0} 条记录的中间结束 ({1})") \
    X(ExtraLines, "extra-lines", Error, "this text belongs to no section: the one above ends before it", "此文本不属于任何节: 上面的节在它之前已结束") \
    X(DoubledLine, "extra-lines", Error, "this line repeats the one above; without it the section reads whole", "这一行与上一行重复; 去掉它该节就能完整读出") \
    X(TextTooLong, "text-too-long", Error, "the text of {0} is longer than {1} bytes and is cut", "{0} 的文本超过 {1} 字节, 将被截断") \
    X(BadDataType, "bad-data-type", Error, "data type {0} is unknown: the rest of the record is not read, and the user could never leave the field", "未知的数据类型 {0}: 记录的其余部分不会被读取, 用户将无法离开该输入框") \
    X(BadValue, "bad-value", Warning, "{0} has no choice {1}: {2}", "{0} 没有取值 {1}: {2}") \
    X(BadFlag, "bad-value", Warning, "{0} is {1}: only 1 means yes; write 0 or 1", "{0} 为 {1}: 只有 1 表示是; 请写 0 或 1") \
    X(BadColour, "bad-value", Warning, "colour component {0} is outside 0 to 255", "颜色分量 {0} 不在 0 到 255 之间") \
    X(MinAboveMax, "bad-range", Error, "the minimum {0} is above the maximum {1}", "最小值 {0} 大于最大值 {1}") \
    X(InitialOutside, "bad-range", Error, "the initial value {0} is outside the range {1} to {2}", "初值 {0} 不在范围 {1} 到 {2} 之内") \
    X(EndNotReached, "bad-range", Error, "steps of {0} from {1} never reach the end {2}", "步长 {0} 从 {1} 起永远到不了 {2}") \
    X(InitialTooLong, "bad-range", Error, "the initial text has {0} bytes, but at most {1} are allowed", "初始文本有 {0} 字节, 最多允许 {1}") \
    X(DuplicateId, "duplicate-id", Error, "id {0} belongs to the control of line {1} already", "功能号 {0} 已属于第 {1} 行的控件") \
    X(ReservedId, "duplicate-id", Error, "id {0} means {1} in every dialog", "功能号 {0} 在每个对话框中都表示{1}") \
    X(BoundTwice, "duplicate-id", Error, "line {1} says how the control {0} follows the dialog already: this entry does nothing", "第 {1} 行已说明控件 {0} 如何随窗口变化: 此条目不起作用") \
    X(UnknownId, "unknown-id", Error, "no control of {0} has the id {1}: the entry is dropped", "{0} 中没有功能号为 {1} 的控件: 该条目被丢弃") \
    X(UnknownIds, "unknown-id", Error, "no control of {0} has the id {1}: this and {2} more entries are dropped", "{0} 中没有功能号为 {1} 的控件: 该条目及另外 {2} 条被丢弃") \
    X(NothingForId, "unknown-id", Error, "no entry of {0} names the id {1}; its entries name {2}, which no control has", "{0} 中没有条目使用功能号 {1}; 其条目使用的 {2} 不属于任何控件") \
    X(UnknownSlot, "unknown-id", Error, "the picture's slot {0} cannot be meant: it is dropped", "图片位置 {0} 不可能正确: 该图片被丢弃") \
    X(UnknownControl, "unknown-id", Error, "no control has the id {0}", "没有功能号为 {0} 的控件") \
    X(ControlShrinks, "bad-binding", Warning, "the control becomes smaller as the dialog becomes larger: its {0} goes further than its {1}", "对话框变大时该控件反而变小: 其 {0} 边比 {1} 边移动得更远") \
    X(SizeKept, "bad-binding", Warning, "a control of this kind keeps its {0}: it only moves, to the middle of what it should fill", "这种控件的 {0} 不变: 它只会移到应占区域的中间") \
    X(MissingSecondary, "missing-secondary", Error, "section {0} is missing: without it no control of {1} is built (a count of 0 will do)", "缺少 {0} 节: 没有它 {1} 的控件都不会建立 (数目可以为 0)") \
    X(MissingFile, "missing-file", Error, "there is no file '{0}'", "没有文件 '{0}'") \
    X(BadPicture, "bad-picture", Error, "'{0}' is no .bmp picture that can be shown", "'{0}' 不是可以显示的 .bmp 图片") \
    X(NoRegion, "bad-picture", Error, "'{0}' has too many pixels: no region is made of it, as if none were named", "'{0}' 的像素过多: 不会用它生成区域, 如同没有指定") \
    X(RemoteFile, "remote-file", Warning, "'{0}' names a network or device path, which opening the dialog would touch", "'{0}' 是网络或设备路径, 打开对话框时会访问它") \
    X(ZeroGrid, "zero-grid", Warning, "{0} is {1}: it counts as 1", "{0} 为 {1}: 按 1 处理") \
    X(OutsideDialog, "outside-dialog", Warning, "the control ({0}) reaches beyond the dialog's {1} x {2} pixels", "控件 ({0}) 超出对话框的 {1} x {2} 像素") \
    X(OutsideOtherFrame, "outside-dialog", Warning, "the control ({0}) fits only where frame and caption are small: keep within {1} x {2}", "控件 ({0}) 只在边框和标题栏较小的系统上放得下: 请保持在 {1} x {2} 以内") \
    X(OrphanItem, "orphan-item", Error, "no item has the key {0}: this one is not shown", "没有键为 {0} 的项: 这一项不会显示") \
    X(ItemCycle, "orphan-item", Error, "the item is below itself: it is not shown", "该项是它自己的下级: 不会显示") \
    X(LostCell, "lost-cell", Error, "row {0} has no cell of column 0 before this: the cell is lost", "第 {0} 行在此之前没有第 0 列的单元格: 该单元格会丢失") \
    X(LostColumn, "lost-cell", Error, "there is no column {0}: the cell is lost", "没有第 {0} 列: 该单元格会丢失") \
    X(StepTooLarge, "step-out-of-range", Warning, "a step of {0} never fits the range {1} to {2}", "步长 {0} 在范围 {1} 到 {2} 内永远不能用") \
    X(StepIsZero, "step-out-of-range", Warning, "a step of 0 changes nothing", "步长 0 不会改变任何值") \
    X(StartOutOfRange, "step-out-of-range", Warning, "position {0} has no picture: there are {1}", "位置 {0} 没有图片: 共有 {1} 张") \
    X(NeverShown, "never-shown", Error, "the control is {0} x {1} pixels: it can never be seen", "控件为 {0} x {1} 像素: 永远看不到") \
    X(NoStatusShown, "never-shown", Error, "status {0} is not listed: it is never shown, the first one is", "状态 {0} 未列出: 永远不会显示, 而显示第一个") \
    X(TwoDefaults, "two-defaults", Warning, "the button of line {0} is the default button already", "第 {0} 行的按钮已是默认按钮") \
    X(SplitRadioGroup, "split-radio-group", Error, "the window index {0} falls inside the radio group of line {1} and splits it", "窗口序号 {0} 落在第 {1} 行的单选组之内, 将其分开") \
    X(WrongTabOrder, "wrong-tab-order", Warning, "controls of this kind come last in Tab order whatever their window index; {0} stands before others", "这种控件无论窗口序号如何都排在 Tab 顺序的最后; {0} 却排在其他控件之前") \
    X(InvisibleTabStop, "invisible-tab-stop", Warning, "Tab stops at this control, where the user sees nothing", "Tab 会停在此控件上, 用户却看不到它") \
    X(NoLabel, "no-label", Warning, "no label stands directly before this control in Tab order, or the one that does stands elsewhere", "Tab 顺序中紧挨此控件之前没有标题, 或该标题不在其旁边") \
    X(NoAccessibleName, "no-accessible-name", Warning, "the picture control has no name: no label stands directly before it in Tab order", "图片控件没有名称: Tab 顺序中紧挨它之前没有标题") \
    X(LowContrast, "low-contrast", Warning, "black text on the colour {0} has a contrast of {1}:1, below 4.5:1", "黑色文字在颜色 {0} 上的对比度为 {1}:1, 低于 4.5:1") \
    X(CaptionCut, "label-cut", Warning, "the text is {0} pixels wide, but the control shows {1} of them", "文本宽 {0} 像素, 但控件只显示 {1} 像素") \
    X(LinesCut, "label-cut", Warning, "the text takes {0} lines, but the control shows {1}", "文本需要 {0} 行, 但控件只显示 {1} 行") \
    X(HiddenBehind, "hidden-behind", Warning, "the control lies wholly behind the one of line {0}", "该控件完全被第 {0} 行的控件遮住")
// clang-format on
