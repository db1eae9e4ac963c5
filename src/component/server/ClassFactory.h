#pragma once

#include "component/objects/ServerLife.h"
#include "component/server/ServerClasses.h"

#include <atomic>

namespace quillmere::component {

/// Makes the objects of one class.
class ClassFactory final : public IClassFactory {
public:
    explicit ClassFactory(const ServerClass& row) : row_(row) {}
    ClassFactory(const ClassFactory&) = delete;
    ClassFactory& operator=(const ClassFactory&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;
    /// No object of the server can be part of another.
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

private:
    ~ClassFactory() = default;

    const ServerClass& row_;
    std::atomic<ULONG> references_{1};
    LifeToken life_;
};

} // namespace quillmere::component
