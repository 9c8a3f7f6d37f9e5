#include "win/Accessible.h"

#include "win/Com.h"
#include "win/SystemLibrary.h"

#include <oleacc.h>

#include <atomic>
#include <utility>

namespace win {

namespace {

// The library is loaded when a screen reader first asks: most starts never pay for it.
FARPROC Oleacc(const char* function) {
    static const HMODULE library = LoadSystemLibrary(L"oleacc.dll");
    return library ? GetProcAddress(library, function) : nullptr;
}

template <class Function> Function As(FARPROC function) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(function));
}

// Passes everything on to the system's object but role and name. Owned by its COM references.
class DrawnControl final : public IAccessible {
  public:
    DrawnControl(IAccessible* system, LONG role, std::wstring name)
        : system_(system), role_(role), name_(std::move(name)) {}
    virtual ~DrawnControl() { system_->Release(); }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        const bool known = id == IID_IUnknown || id == IID_IDispatch || id == IID_IAccessible;
        *object = known ? static_cast<IAccessible*>(this) : nullptr;
        if (!known) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
        if (child.vt != VT_I4 || child.lVal != CHILDID_SELF) return system_->get_accRole(child, role);
        role->vt = VT_I4;
        role->lVal = role_;
        return S_OK;
    }
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        if (child.vt != VT_I4 || child.lVal != CHILDID_SELF) return system_->get_accName(child, name);
        *name = SysAllocString(name_.c_str());
        return *name ? S_OK : E_OUTOFMEMORY;
    }

    // clang-format off
    STDMETHODIMP get_accParent(IDispatch** p) override { return system_->get_accParent(p); }
    STDMETHODIMP get_accChildCount(long* n) override { return system_->get_accChildCount(n); }
    STDMETHODIMP get_accChild(VARIANT v, IDispatch** p) override { return system_->get_accChild(v, p); }
    STDMETHODIMP get_accValue(VARIANT v, BSTR* s) override { return system_->get_accValue(v, s); }
    STDMETHODIMP get_accDescription(VARIANT v, BSTR* s) override { return system_->get_accDescription(v, s); }
    STDMETHODIMP get_accState(VARIANT v, VARIANT* r) override { return system_->get_accState(v, r); }
    STDMETHODIMP get_accHelp(VARIANT v, BSTR* s) override { return system_->get_accHelp(v, s); }
    STDMETHODIMP get_accHelpTopic(BSTR* f, VARIANT v, long* n) override { return system_->get_accHelpTopic(f, v, n); }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT v, BSTR* s) override { return system_->get_accKeyboardShortcut(v, s); }
    STDMETHODIMP get_accFocus(VARIANT* r) override { return system_->get_accFocus(r); }
    STDMETHODIMP get_accSelection(VARIANT* r) override { return system_->get_accSelection(r); }
    STDMETHODIMP get_accDefaultAction(VARIANT v, BSTR* s) override { return system_->get_accDefaultAction(v, s); }
    STDMETHODIMP accSelect(long f, VARIANT v) override { return system_->accSelect(f, v); }
    STDMETHODIMP accLocation(long* x, long* y, long* w, long* h, VARIANT v) override { return system_->accLocation(x, y, w, h, v); }
    STDMETHODIMP accNavigate(long d, VARIANT v, VARIANT* r) override { return system_->accNavigate(d, v, r); }
    STDMETHODIMP accHitTest(long x, long y, VARIANT* r) override { return system_->accHitTest(x, y, r); }
    STDMETHODIMP accDoDefaultAction(VARIANT v) override { return system_->accDoDefaultAction(v); }
    STDMETHODIMP put_accName(VARIANT v, BSTR s) override { return system_->put_accName(v, s); }
    STDMETHODIMP put_accValue(VARIANT v, BSTR s) override { return system_->put_accValue(v, s); }
    STDMETHODIMP GetTypeInfoCount(UINT* n) override { return system_->GetTypeInfoCount(n); }
    STDMETHODIMP GetTypeInfo(UINT i, LCID l, ITypeInfo** p) override { return system_->GetTypeInfo(i, l, p); }
    STDMETHODIMP GetIDsOfNames(REFIID i, LPOLESTR* s, UINT n, LCID l, DISPID* d) override { return system_->GetIDsOfNames(i, s, n, l, d); }
    STDMETHODIMP Invoke(DISPID d, REFIID i, LCID l, WORD f, DISPPARAMS* p, VARIANT* r, EXCEPINFO* e, UINT* a) override { return system_->Invoke(d, i, l, f, p, r, e, a); }
    // clang-format on

  private:
    IAccessible* system_; // one reference, ours
    LONG role_;
    std::wstring name_;
    std::atomic<ULONG> references_ = 1;
};

} // namespace

LRESULT AnswerGetObject(HWND window, WPARAM wParam, LPARAM lParam, LONG role, const std::wstring& name) {
    if (static_cast<LONG>(lParam) != OBJID_CLIENT) return 0;
    const auto create = As<decltype(&CreateStdAccessibleObject)>(Oleacc("CreateStdAccessibleObject"));
    const auto answer = As<decltype(&LresultFromObject)>(Oleacc("LresultFromObject"));
    if (!create || !answer) return 0;
    StartOle(); // the object goes to another thread or program
    void* system = nullptr;
    if (FAILED(create(window, OBJID_CLIENT, IID_IAccessible, &system)) || !system) return 0;
    auto* control = new DrawnControl(static_cast<IAccessible*>(system), role, name);
    const LRESULT result = answer(IID_IAccessible, wParam, control);
    control->Release();
    return result;
}

} // namespace win
