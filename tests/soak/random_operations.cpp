#include "soak/random_operations.h"
#include "soak/told_step.h"
#include "support/pump.h"

RandomOperationsCL::RandomOperationsCL(
    unsigned seed, const std::string& sections, const std::string& otherSections)
    : pick_(seed)
    , file_(sections)
    , otherFile_(otherSections)
{
    addHostM();
    addValuesM();
    addFormM();
    for (const OperationCL& operation : operations_) {
        weights_ += operation.weight;
    }
    buildHostM();
    openFormsM();
}

RandomOperationsCL::~RandomOperationsCL()
{
    panelkit_destroy(dialog_);
    for (int message = 0; message < 14; ++message) { // These are the process's.
        DuBasicDialogCL::SetMessageTextM(message, nullptr);
    }
    DuBasicDialogCL().SetLanguageM(nullptr);
}

const RandomOperationsCL::OperationCL& RandomOperationsCL::ChooseM()
{
    int left = pick_.BelowM(weights_);
    auto operation = operations_.begin();
    while (left >= operation->weight) {
        left -= operation->weight;
        ++operation;
    }
    return *operation;
}

int RandomOperationsCL::idM()
{
    return pick_.ChanceM(90) ? 11 + pick_.BelowM(41) : pick_.NumberM();
}

void RandomOperationsCL::buildHostM()
{
    host_ = std::make_unique<HostCL>();
    host_->SetConfigFileM(fileM());
    if (pick_.ChanceM(50)) {
        host_->CreateM();
        host_->ShowWindow(SW_SHOWNA);
    } else {
        host_->InitDlgM(&window_, 0);
    }
}

void RandomOperationsCL::openFormsM()
{
    panelkit_destroy(dialog_);
    gone_ = dialog_;
    panelkit_options options {};
    options.size = sizeof options;
    options.callback = [](const panelkit_event*, void*) -> std::int32_t { return 0; };
    panelkit_open(fileM(), &options, &dialog_);
    panelkit_show(dialog_);
    form_ = panelkit::Form(fileM());
}

template <class RowTP> void RandomOperationsCL::callControlM(int id)
{
    using ControlTP = typename RowTP::Controls::ControlTP;
    int kind = 0;
    CWnd* const control = host_->GetContrlPtrM(id, &kind);
    if (control != nullptr && kind == RowTP::Code) {
        const auto& list = ControlOperationsCL<ControlTP>::ListM();
        const auto& operation = list[static_cast<std::size_t>(pick_.BelowM(static_cast<int>(list.size())))];
        ToldStepCL::NoteNameM(RowTP::Records::KindName, operation.name);
        operation.run(static_cast<ControlTP&>(*control), pick_);
    }
}

#define OPERATION(name, weight, call)                                                                        \
    operations_.push_back({ name, weight, [](RandomOperationsCL& w) {                                        \
                               [[maybe_unused]] auto& p = w.pick_;                                           \
                               [[maybe_unused]] auto& host = *w.host_;                                       \
                               [[maybe_unused]] auto& values = host.ValuesM();                               \
                               [[maybe_unused]] const int id = w.idM();                                      \
                               [[maybe_unused]] auto& form = w.form_;                                        \
                               static_cast<void>(call);                                                      \
                           } })

void RandomOperationsCL::addHostM()
{
    OPERATION("a control's", 300, slEachKind([&](auto row) { w.callControlM<decltype(row)>(id); }));
    OPERATION("messages", 2, testing_support::PumpPending());
    OPERATION("another host", 1, w.buildHostM());
    OPERATION("InitDlgM", 1, host.InitDlgM(p.NullM() ? nullptr : &w.window_, p.BelowM(2) * 3));
    OPERATION("SetConfigFileM", 1, host.SetConfigFileM(p.ChanceM(80) ? w.fileM() : p.TextM()));
    OPERATION("DestroyM", 1, (host.DestroyM(), p.ChanceM(80) ? w.buildHostM() : void()));
    OPERATION("DestroyWindow", 1, (host.DestroyWindow(), p.ChanceM(80) ? w.buildHostM() : void()));
    OPERATION("SetCancelIdM", 5, host.SetCancelIdM(id));
    OPERATION("SetScaleM", 1, host.SetScaleM(p.ChanceM(90) ? 60 + p.BelowM(120) : p.NumberM() % 300));
    OPERATION("SetLanguageM", 3,
        host.SetLanguageM(p.ChanceM(50) ? "en"
                : p.ChanceM(50)         ? "zz_ZZ"
                                        : p.TextM()));
    OPERATION("SetTextColourM", 10,
        host.SetTextColourM(id, p.ChanceM(50) ? std::nullopt : std::optional(RGB(9, 9, 9))));
    OPERATION("SetAccessibleNameM", 10, host.SetAccessibleNameM(id, p.TextM()));
    OPERATION("SetSelectRefusedM", 3, host.SetSelectRefusedM(p.ChanceM(50)));
    OPERATION("SetMessageOwnerM", 3, host.SetMessageOwnerM(p.ChanceM(50)));
    OPERATION("SetMessageTextM", 3, DuBasicDialogCL::SetMessageTextM(p.PlaceM(), p.TextM()));
    OPERATION("MessageTextM", 3, DuBasicDialogCL::MessageTextM(p.PlaceM()));
    OPERATION("ResizeM", 4, host.ResizeM(p.NumberM(), p.NumberM()));
    OPERATION("size of the window", 2,
        host.m_hWnd != nullptr
            && host.SetWindowPos(
                nullptr, 0, 0, p.BelowM(900), p.BelowM(700), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE));
    OPERATION("DrawBkGroundM", 3, host.DrawBkGroundM(nullptr, p.NumberM(), p.NumberM()));
    OPERATION("ShowContrlM", 20, host.ShowContrlM(id, p.BelowM(3)));
    OPERATION("ShowAllCtrlM", 1, host.ShowAllCtrlM(p.ChanceM(80) ? 1 : 0));
    OPERATION("EnableAllCtrlM", 1, host.EnableAllCtrlM(p.ChanceM(80) ? 1 : 0));
    OPERATION("EnableSingleEditM", 3, host.EnableSingleEditM(id, p.ChanceM(80) ? 1 : 0));
    OPERATION("ShowObjectM", 5, host.ShowObjectM(p.BelowM(20), p.NumberM(), p.ChanceM(80)));
    OPERATION("GetNormalAnimateBmpIdxM", 10, host.GetNormalAnimateBmpIdxM(id, p.OutM()));
    OPERATION("ChangeNormalAnimateM", 10, host.ChangeNormalAnimateM(id, p.NumberM()));
    OPERATION("GetContrlPtrM", 10, host.GetContrlPtrM(id, p.OutM()));
    OPERATION("SetPainterM", 10,
        host.SetPainterM(
            id, p.ChanceM(50) ? PainterTP() : [](CDC& dc, CSize) { dc.LineTo(9, 9); }));
    OPERATION("RepaintM", 10, host.RepaintM(id));
    OPERATION("ShowFrameM", 10, host.ShowFrameM(id, p.PlaceM()));
    OPERATION("SetPictureKeyboardM", 3, host.SetPictureKeyboardM(p.ChanceM(50)));
    OPERATION("AddItemM", 20, host.AddItemM(id, p.NumberM(), p.FileM()));
    OPERATION("DelItemM", 10, host.DelItemM(id));
    OPERATION("SetSelM", 10, host.SetSelM(id));
    OPERATION("SetSingleEditValM, int", 20, host.SetSingleEditValM(id, p.NumberM()));
    OPERATION("SetSingleEditValM, real", 20, host.SetSingleEditValM(id, p.RealM()));
    OPERATION("SetSingleEditValM, text", 20, host.SetSingleEditValM(id, p.TextM()));
    OPERATION("GetSingleEditValM, int", 10, host.GetSingleEditValM(id, p.OutM()));
    OPERATION("GetSingleEditValM, real", 10, host.GetSingleEditValM(id, p.RealOutM()));
    OPERATION("GetSingleEditValM, text", 10, host.GetSingleEditValM(id, p.RoomM(TextSize)));
    OPERATION("SetValueStatusM", 3, host.SetValueStatusM(p.NumberM()));
    OPERATION("CheckValueLegalM", 1, host.CheckValueLegalM());
    OPERATION("initItemRelationM", 1, host.initItemRelationM());
}

void RandomOperationsCL::addValuesM()
{
    OPERATION("PartsM", 10, values.PartsM(id));
    OPERATION("IntM", 10, values.IntM(id));
    OPERATION("SetIntM", 30, values.SetIntM(id, p.NumberM()));
    OPERATION("RealM", 10, values.RealM(id));
    OPERATION("SetRealM", 20, values.SetRealM(id, static_cast<double>(p.RealM())));
    OPERATION("TextM", 10, values.TextM(id));
    OPERATION("TextM, room", 10, values.TextM(id, p.RoomM(40), 40));
    OPERATION("Utf8TextM", 10, values.Utf8TextM(id, p.RoomM(7), 7));
    OPERATION("WideTextM", 5, values.WideTextM(id, nullptr, p.NumberM()));
    OPERATION("SetTextM", 40, values.SetTextM(id, p.TextM()));
    OPERATION("SetTextM, UTF-8", 20, values.SetTextM(id, ValueTextCL::FromUtf8M(p.Utf8TextM())));
    OPERATION("CheckedM", 5, values.CheckedM(id));
    OPERATION("SetCheckedM", 20, values.SetCheckedM(id, p.ChanceM(50)));
    OPERATION("GroupM", 5, values.GroupM(id));
    OPERATION("IndexM", 10, values.IndexM(id));
    OPERATION("SetIndexM", 30, values.SetIndexM(id, p.PlaceM()));
    OPERATION("SelectionM", 10, values.SelectionM(id));
    OPERATION("SetSelectionM", 20, values.SetSelectionM(id, { p.PlaceM(), p.PlaceM(), p.PlaceM() }));
    OPERATION("PathM", 5, values.PathM(id));
    OPERATION("SetPathM", 10, values.SetPathM(id, p.TextM()));
    OPERATION("SavedM", 10, values.SavedM(id));
    OPERATION("RestoreM", 20, values.RestoreM(id, p.SomeUtf8TextM()));
    OPERATION("AllM", 1, values.AllM());
    OPERATION("SetAllM", 1, values.SetAllM(values.AllM()));
    OPERATION("LineCountM", 10, values.LineCountM(id));
    OPERATION("LineM", 10, values.LineM(id, p.PlaceM()));
    OPERATION("AddLineM", 20, values.AddLineM(id, p.FileM(), p.NumberM()));
    OPERATION("InsertLineM", 20, values.InsertLineM(id, p.PlaceM(), p.FileM(), p.NumberM()));
    OPERATION("DeleteLineM", 30, values.DeleteLineM(id, p.PlaceM()));
    OPERATION("ClearLinesM", 5, values.ClearLinesM(id));
    OPERATION("EnableM", 10, values.EnableM(id, p.ChanceM(80)));
    OPERATION("ShowM", 10, values.ShowM(id, p.ChanceM(80)));
    OPERATION("IsEnabledM", 5, values.IsEnabledM(id));
    OPERATION("IsShownM", 5, values.IsShownM(id));
    OPERATION("CaptionM", 10, values.CaptionM(id));
    OPERATION("SetCaptionM", 20, values.SetCaptionM(id, p.TextM()));
}

// The dialog's handle; now and then none, that of one that is gone, or what is a handle of something else.
#define DIALOG                                                                                               \
    (p.ChanceM(94)          ? w.dialog_                                                                      \
            : p.ChanceM(30) ? nullptr                                                                        \
            : p.ChanceM(50) ? w.gone_                                                                        \
                            : reinterpret_cast<panelkit_dialog*>(w.window_.m_hWnd))

void RandomOperationsCL::addFormM()
{
    OPERATION("other forms", 1, w.openFormsM());
    OPERATION("panelkit_get_int", 10, panelkit_get_int(DIALOG, id, p.OutM()));
    OPERATION("panelkit_set_int", 20, panelkit_set_int(DIALOG, id, p.NumberM()));
    OPERATION("panelkit_set_real", 20, panelkit_set_real(DIALOG, id, static_cast<double>(p.RealM())));
    OPERATION("panelkit_get_text", 20, panelkit_get_text(DIALOG, id, p.RoomM(9), 9, nullptr));
    OPERATION("panelkit_set_text", 30, panelkit_set_text(DIALOG, id, p.Utf8TextM()));
    OPERATION("panelkit_set_checked", 10, panelkit_set_checked(DIALOG, id, p.NumberM()));
    OPERATION("panelkit_get_group", 10, panelkit_get_group(DIALOG, id, p.OutM()));
    OPERATION("panelkit_set_index", 20, panelkit_set_index(DIALOG, id, p.PlaceM()));
    OPERATION("panelkit_get_selection", 10, panelkit_get_selection(DIALOG, id, p.PairOutM(), 2, nullptr));
    OPERATION("panelkit_set_selection", 20, panelkit_set_selection(DIALOG, id, p.PairM(), 2));
    OPERATION("panelkit_set_path", 10, panelkit_set_path(DIALOG, id, p.Utf8TextM()));
    OPERATION("panelkit_get_path", 10, panelkit_get_path(DIALOG, id, p.RoomM(9), 9, nullptr));
    OPERATION("panelkit_save", 10, panelkit_save(DIALOG, id, p.RoomM(50), 50, nullptr));
    OPERATION("panelkit_restore", 20, panelkit_restore(DIALOG, id, p.Utf8TextM()));
    OPERATION("panelkit_save_all", 1, panelkit_save_all(DIALOG, p.RoomM(900), 900, nullptr));
    OPERATION("panelkit_restore_all", 3, panelkit_restore_all(DIALOG, p.Utf8TextM(), nullptr));
    OPERATION("panelkit_get_line", 10, panelkit_get_line(DIALOG, id, p.PlaceM(), p.RoomM(9), 9, nullptr));
    OPERATION("panelkit_add_line", 20, panelkit_add_line(DIALOG, id, p.FileM(), p.NumberM()));
    OPERATION("panelkit_insert_line", 20, panelkit_insert_line(DIALOG, id, p.PlaceM(), p.FileM(), 1));
    OPERATION("panelkit_delete_line", 30, panelkit_delete_line(DIALOG, id, p.PlaceM()));
    OPERATION("panelkit_clear_lines", 3, panelkit_clear_lines(DIALOG, id));
    OPERATION("panelkit_show", 2, panelkit_show(DIALOG));
    OPERATION("panelkit_close", 1, panelkit_close(DIALOG, p.NumberM()));
    OPERATION("panelkit_set_title", 5, panelkit_set_title(DIALOG, p.Utf8TextM()));
    OPERATION("panelkit_get_title", 5, panelkit_get_title(DIALOG, p.RoomM(9), 9, nullptr));
    OPERATION("panelkit_enable_control", 10, panelkit_enable_control(DIALOG, id, p.ChanceM(80) ? 1 : 0));
    OPERATION("panelkit_show_control", 10, panelkit_show_control(DIALOG, id, p.ChanceM(80) ? 1 : 0));
    OPERATION("panelkit_set_caption", 10, panelkit_set_caption(DIALOG, id, p.Utf8TextM()));
    OPERATION("panelkit_set_scale", 1, panelkit_set_scale(DIALOG, p.ChanceM(90) ? 60 + p.BelowM(120) : -1));
    OPERATION("panelkit_start_timer", 3, panelkit_start_timer(DIALOG, p.BelowM(5), p.NumberM()));
    OPERATION("panelkit_stop_timer", 3, panelkit_stop_timer(DIALOG, p.BelowM(5)));
    OPERATION("panelkit_show_frame", 5, panelkit_show_frame(DIALOG, id, p.PlaceM()));
    OPERATION("panelkit_set_text_colour", 10, panelkit_set_text_colour(DIALOG, id, p.NumberM()));
    OPERATION("panelkit_set_accessible_name", 5, panelkit_set_accessible_name(DIALOG, id, p.Utf8TextM()));
    OPERATION("panelkit_set_message_text", 3, panelkit_set_message_text(p.PlaceM(), p.Utf8TextM()));
    OPERATION("panelkit_last_error", 3, panelkit_last_error(DIALOG));
    OPERATION("panelkit_canvas", 3, panelkit_canvas_fill(reinterpret_cast<panelkit_canvas*>(w.dialog_), 0));
    OPERATION("Form::Set, int", 20, form.Set(id, p.NumberM()));
    OPERATION("Form::Set, text", 20, form.Set(id, p.Utf8TextM()));
    OPERATION("Form::Selection", 10, form.Selection(id));
    OPERATION("Form::Restore", 10, form.Restore(id, p.SomeUtf8TextM()));
    OPERATION("Form::Controls", 1, form.Controls());
    OPERATION("Form, moved", 1, form = panelkit::Form(std::move(form)));
    OPERATION("Form::Show", 1, form.Show());
    OPERATION("Form::Close", 1, form.Close());
}
