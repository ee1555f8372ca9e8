#include "toolkit/exceptions.h"
#include "baselib/gbk.h"
#include "baselib/message_texts.h"
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
    const int id = textIdM();
    const std::u16string text = slMessageTemplate(id);
    slCopyText(to, static_cast<int>(size), slUtf16ToGbk(text.data(), text.size()));
    return id >= 0;
}

int CMemoryException::textIdM() const
{
    return NoMemoryMessage;
}
int CResourceException::textIdM() const
{
    return NoResourceMessage;
}
int CUserException::textIdM() const
{
    return -1;
}
int CNotSupportedException::textIdM() const
{
    return NotSupportedMessage;
}
int CInvalidArgException::textIdM() const
{
    return BadArgumentMessage;
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
