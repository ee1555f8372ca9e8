#include "controls/base/control_common.h"
#include "baselib/gbk.h"
#include "controls/base/messages.h"
#include "toolkit/life.h"
#include <atomic>

namespace {

std::atomic<unsigned> idChanges { 0 };

} // namespace

void IdChangesCL::AddM()
{
    idChanges.fetch_add(1, std::memory_order_relaxed);
}

unsigned IdChangesCL::CountM()
{
    return idChanges.load(std::memory_order_relaxed);
}

bool slOutlives(CWnd* control, const CallRefCL<void()>& act)
{
    const LifeCL life(control);
    act();
    return life.IsAliveM();
}

DControlCommonCL::~DControlCommonCL() = default;

DControlCommonCL& DControlCommonCL::operator=(const DControlCommonCL& other)
{
    windowIndex_ = other.windowIndex_;
    selfIndex_ = other.selfIndex_;
    window_ = other.window_;
    SetPositionM(other.position_);
    SetSizeM(other.size_);
    SetFunctionIDM(other.functionId_);
    showCondition_ = other.showCondition_;
    descript_ = other.descript_;
    pictureScale_ = other.pictureScale_;
    return *this;
}

void DControlCommonCL::SetBaseInfoM(int windowIndex, int selfIndex, int functionId)
{
    windowIndex_ = windowIndex;
    selfIndex_ = selfIndex;
    SetFunctionIDM(functionId);
}

void DControlCommonCL::SetDescriptM(const char* text)
{
    char cut[DescriptSize];
    slCopyText(cut, DescriptSize, text);
    descript_.SetM(cut);
}

int DControlCommonCL::AddRelationItemM(int a, int b, int c)
{
    const int triple[3] = { a, b, c };
    return relationItems_.AddItemM(triple);
}

void DControlCommonCL::doRelationM() const
{
    for (int i = relationItems_.GetFirstIdxM(); i >= 0; i = relationItems_.GetNextIdxM(i)) {
        int triple[3];
        relationItems_.GetItemM(triple, i);
        doRelationItemM(triple[0], triple[1], triple[2]);
    }
}

int DControlCommonCL::doRelationItemM(int, int b, int) const
{
    CWnd* parent = hasWindowM() ? window_->GetParent() : nullptr;
    return parent != nullptr && parent->GetDlgItem(b) != nullptr ? 1 : 0;
}

int DControlCommonCL::CheckLegalM(int ask)
{
    CWnd* mainWindow = ask != 0 ? AfxGetMainWnd() : nullptr;
    if (mainWindow != nullptr) {
        const HWND own = hasWindowM() ? window_->m_hWnd : nullptr;
        mainWindow->SendMessage(QueryPermissionMsg, reinterpret_cast<WPARAM>(&legalFlag_), 0);
        if (own != nullptr && !::IsWindow(own)) { // The application may have destroyed this object.
            return 0;
        }
    }
    return legalFlag_;
}

void DControlCommonCL::OnMouseMove(CWnd* target, UINT, const CPoint& point)
{
    if (target == nullptr) {
        return;
    }
    CPoint onScreen = point;
    if (hasWindowM()) {
        window_->ClientToScreen(&onScreen);
    }
    PointerReportCL report { static_cast<int>(onScreen.x), static_cast<int>(onScreen.y), window_ };
    target->SendMessage(
        PointerReportMsg, reinterpret_cast<WPARAM>(&report), reinterpret_cast<LPARAM>(descript_.TextM()));
}
