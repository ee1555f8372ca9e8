#pragma once
#include "toolkit/object.h"
#include <exception>
#include <utility>

// Exceptions are thrown as pointers to objects on the heap. Who catches one with catch deletes it by Delete;
// the macros below do so themselves.
class PANELKIT_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)
public:
    CException() = default;
    explicit CException(BOOL autoDelete)
        : isAutoDeleted_(autoDelete)
    {
    }
    void Delete(); // nothing for one that was made with FALSE
    // The text for the user in GBK, cut between characters to size bytes with the zero. FALSE: there is none.
    virtual BOOL GetErrorMessage(LPSTR to, UINT size, PUINT helpId = nullptr) const;
    // Shows the text in a message box; without one that of the string resource textId, else a general one.
    virtual int ReportError(UINT type = MB_OK, UINT textId = 0);

private:
    BOOL isAutoDeleted_ = TRUE;
};

// One that is told by a fixed text.
class PANELKIT_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)
public:
    using CException::CException;
    BOOL GetErrorMessage(LPSTR to, UINT size, PUINT helpId = nullptr) const override;

protected:
    virtual int textIdM() const { return -1; } // MessageTextId; -1: none
};

// Declares such a class with no more than a text; defined here only.
#define AFX_SIMPLE_EXCEPTION(class_name)                                                                     \
    class PANELKIT_API class_name : public CSimpleException                                                  \
    {                                                                                                        \
        DECLARE_DYNAMIC(class_name)                                                                          \
    public:                                                                                                  \
        using CSimpleException::CSimpleException;                                                            \
                                                                                                             \
    protected:                                                                                               \
        int textIdM() const override;                                                                        \
    };
AFX_SIMPLE_EXCEPTION(CMemoryException)       // there is no memory left
AFX_SIMPLE_EXCEPTION(CResourceException)     // the system has no such resource, or refuses one
AFX_SIMPLE_EXCEPTION(CUserException)         // ends what the user has begun and has been told the reason of
AFX_SIMPLE_EXCEPTION(CNotSupportedException) // what was asked for cannot be done
AFX_SIMPLE_EXCEPTION(CInvalidArgException)   // an argument that cannot be meant
#undef AFX_SIMPLE_EXCEPTION

// Throw a new exception of that class.
[[noreturn]] PANELKIT_API void AfxThrowMemoryException();
[[noreturn]] PANELKIT_API void AfxThrowResourceException();
[[noreturn]] PANELKIT_API void AfxThrowUserException();
[[noreturn]] PANELKIT_API void AfxThrowNotSupportedException();
[[noreturn]] PANELKIT_API void AfxThrowInvalidArgException();
[[noreturn]] PANELKIT_API void AfxAbort(); // ends the program at once

// Deletes the exception at the end of a CATCH block, unless it goes on or another one leaves the block.
class AfxCaught
{
public:
    // What the block has caught; null: nothing.
    explicit AfxCaught(CException* caught)
        : caught_(caught)
        , flying_(std::uncaught_exceptions())
    {
    }
    ~AfxCaught()
    {
        if (caught_ != nullptr && std::uncaught_exceptions() == flying_) {
            caught_->Delete();
        }
    }
    AfxCaught(const AfxCaught&) = delete;
    AfxCaught& operator=(const AfxCaught&) = delete;

private:
    CException* caught_;
    int flying_;
};

// The blocks TRY { } CATCH (class, e) { } AND_CATCH … END_CATCH: each catches exceptions of a class, or of
// all, and deletes the one that it has caught. END_TRY alone catches and deletes whatever is a CException.
#define TRY                                                                                                  \
    {                                                                                                        \
        try {
#define AFX_CATCH(class_name, e)                                                                             \
    }                                                                                                        \
    catch (class_name * e)                                                                                   \
    {                                                                                                        \
        const AfxCaught afxCaught(e);
#define CATCH(class_name, e) AFX_CATCH(class_name, e)
#define AND_CATCH(class_name, e) AFX_CATCH(class_name, e)
#define CATCH_ALL(e) AFX_CATCH(CException, e)
#define AND_CATCH_ALL(e) AFX_CATCH(CException, e)
#define END_CATCH                                                                                            \
    }                                                                                                        \
    }
#define END_CATCH_ALL END_CATCH
#define END_TRY                                                                                              \
    }                                                                                                        \
    catch (CException * afxException)                                                                        \
    {                                                                                                        \
        afxException->Delete();                                                                              \
    }                                                                                                        \
    }

// Throw an exception made by new; the one that is being caught.
#define THROW(e) throw e
#define THROW_LAST() throw
