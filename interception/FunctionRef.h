#pragma once

#include <memory>
#include <type_traits>
#include <utility>

namespace interception {

template <class Signature>
class FunctionRef;

/// A callable that is borrowed for the length of a call: no copy and no allocation, so that a
/// forwarded operation costs a few nanoseconds.
template <class Result, class... Arguments>
class FunctionRef<Result(Arguments...)> {
public:
    template <class Callable>
    requires(!std::is_same_v<std::remove_cvref_t<Callable>, FunctionRef>)
        // NOLINTNEXTLINE(bugprone-forwarding-reference-overload): not for copies, as just required
        FunctionRef(Callable&& callable)
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): the call makes it const again
        : m_callable(const_cast<void*>(static_cast<const void*>(std::addressof(callable)))),
          m_call([](void* target, Arguments... arguments) -> Result {
              return (*static_cast<std::remove_reference_t<Callable>*>(target))(
                  std::forward<Arguments>(arguments)...);
          }) {}

    Result operator()(Arguments... arguments) const {
        return m_call(m_callable, std::forward<Arguments>(arguments)...);
    }

private:
    void* m_callable;
    Result (*m_call)(void*, Arguments...);
};

}
