#pragma once
#include <memory>
#include <type_traits>
#include <utility>

template <class SignatureTP> class CallRefCL;

// Something that can be called, for as long as the call that it is given to: unlike std::function it keeps
// nothing, so that each lambda costs no more than its own code.
template <class ResultTP, class... ArgumentsTP> class CallRefCL<ResultTP(ArgumentsTP...)>
{
public:
    // Calls `function`, which is to live as long as this; nothing is copied.
    // NOLINTNEXTLINE(google-explicit-constructor): a lambda is given as it is.
    template <class FunctionTP,
        class = std::enable_if_t<!std::is_same_v<std::decay_t<FunctionTP>, CallRefCL>>>
    CallRefCL(FunctionTP&& function)
        : object_(const_cast<void*>(static_cast<const void*>(std::addressof(function))))
        , call_([](void* object, ArgumentsTP... arguments) -> ResultTP {
            return (*static_cast<std::remove_reference_t<FunctionTP>*>(object))(
                std::forward<ArgumentsTP>(arguments)...);
        })
    {
    }

    // What the function gives, and throws, for these arguments.
    ResultTP operator()(ArgumentsTP... arguments) const
    {
        return call_(object_, std::forward<ArgumentsTP>(arguments)...);
    }

private:
    void* object_;
    ResultTP (*call_)(void* object, ArgumentsTP... arguments);
};
