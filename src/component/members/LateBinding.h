#pragma once

#include "component/members/Member.h"

#include <cstddef>

namespace quillmere::component {

/// The table of an object, as late-bound calls see it.
class LateBound {
public:
    LateBound() = default;
    LateBound(const LateBound&) = delete;
    LateBound& operator=(const LateBound&) = delete;

    [[nodiscard]] virtual std::size_t memberCount() const = 0;
    [[nodiscard]] virtual const Member& memberAt(std::size_t row) const = 0;
    [[nodiscard]] virtual Variant run(std::size_t row, const VARIANT& argument) = 0;

protected:
    ~LateBound() = default;
};

/// The numbers of a member's name (without regard to case) and of its parameter's behind it. What is not
/// known gets DISPID_UNKNOWN, and the call DISP_E_UNKNOWNNAME.
HRESULT idsOfNames(const LateBound& object, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

/// One late-bound call. `flags` may ask for several kinds of access; the first row that offers one of them
/// runs. An argument that does not fit is DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW with its index; a failure of
/// the member itself is DISP_E_EXCEPTION with number, source and description.
HRESULT invoke(LateBound& object, DISPID id, WORD flags, DISPPARAMS* parameters, VARIANT* result,
               EXCEPINFO* exception, UINT* badArgument) noexcept;

} // namespace quillmere::component
