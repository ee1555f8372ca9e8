#include "toolkit/exceptions.h"
#include "baselib/gbk.h"
#include "toolkit/text.h"
#include <cstdlib>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

void CException::Delete()
{
    if (isAutoDeleted_) {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPSTR to, UINT size, PUINT helpId) const
{
    if (helpId != nullptr) {
        *helpId = 0;
    }
    slCopyText(to, static_cast<int>(size), std::string());
    return FALSE;
}

BOOL CSimpleException::GetErrorMessage(LPSTR to, UINT size, PUINT helpId) const
{
    CException::GetErrorMessage(to, size, helpId);
    const LPCWSTR text = textM();
    slCopyText(to, static_cast<int>(size), WideToGbk(text));
    return text != nullptr;
}

LPCWSTR CMemoryException::textM() const
{
    return L"\u5185\u5B58\u4E0D\u8DB3\u3002"; // 内存不足。
}
LPCWSTR CResourceException::textM() const
{
    return L"\u627E\u4E0D\u5230\u6240\u9700\u7684\u8D44\u6E90\u3002"; // 找不到所需的资源。
}
LPCWSTR CUserException::textM() const
{
    return nullptr;
}
LPCWSTR CNotSupportedException::textM() const
{
    return L"\u4E0D\u652F\u6301\u6B64\u64CD\u4F5C\u3002"; // 不支持此操作。
}
LPCWSTR CInvalidArgException::textM() const
{
    return L"\u53C2\u6570\u65E0\u6548\u3002"; // 参数无效。
}

void AfxThrowMemoryException()
{
    throw new CMemoryException;
}
void AfxThrowResourceException()
{
    throw new CResourceException;
}
void AfxThrowUserException()
{
    throw new CUserException;
}
void AfxThrowNotSupportedException()
{
    throw new CNotSupportedException;
}
void AfxThrowInvalidArgException()
{
    throw new CInvalidArgException;
}
void AfxAbort()
{
    std::abort();
}
