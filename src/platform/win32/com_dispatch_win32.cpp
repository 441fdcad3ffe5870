#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <ole2.h>
#include <oleauto.h>

#include "platform/win32/com_dispatch.h"
#include "platform/win32/text_encoding.h"

namespace zel {
namespace {

/// Owns what its variant holds.
class Variant {
 public:
  Variant() { VariantInit(&variant_); }
  explicit Variant(const ComValue& value) : Variant() {
    std::visit([this](const auto& held) { set(held); }, value);
  }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(&variant_); }

  VARIANT* address() { return &variant_; }

  /// Hands what is held to the caller.
  VARIANT release() {
    const VARIANT held = variant_;
    VariantInit(&variant_);
    return held;
  }

  ComValue value() const {
    switch (variant_.vt) {
      case VT_BOOL: return variant_.boolVal != VARIANT_FALSE;
      case VT_I2: return std::int32_t{variant_.iVal};
      case VT_I4: return static_cast<std::int32_t>(variant_.lVal);
      case VT_BSTR: return fromWide({variant_.bstrVal, SysStringLen(variant_.bstrVal)});
      case VT_DISPATCH:
        if (variant_.pdispVal) variant_.pdispVal->AddRef();
        return ComObject(variant_.pdispVal);
      default: return std::monostate{};
    }
  }

 private:
  void set(std::monostate) {}
  void set(bool value) {
    variant_.vt = VT_BOOL;
    variant_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  }
  void set(std::int32_t value) {
    variant_.vt = VT_I4;
    variant_.lVal = value;
  }
  void set(const std::string& value) {
    const std::wstring wide = toWide(value);
    variant_.vt = VT_BSTR;
    variant_.bstrVal = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  }
  void set(const ComObject& value) {
    variant_.vt = VT_DISPATCH;
    variant_.pdispVal = value.get();
    if (variant_.pdispVal) variant_.pdispVal->AddRef();
  }

  VARIANT variant_;
};

/// The arguments of a call, which automation wants from the last one to the first.
class Arguments {
 public:
  explicit Arguments(const std::vector<ComValue>& values) {
    for (auto value = values.rbegin(); value != values.rend(); ++value)
      variants_.push_back(Variant(*value).release());
  }
  Arguments(const Arguments&) = delete;
  Arguments& operator=(const Arguments&) = delete;
  ~Arguments() {
    for (VARIANT& variant : variants_) VariantClear(&variant);
  }

  DISPPARAMS parameters() {
    return {variants_.data(), nullptr, static_cast<UINT>(variants_.size()), 0};
  }

 private:
  std::vector<VARIANT> variants_;
};

std::optional<DISPID> idOf(IDispatch* dispatch, const std::string& name) {
  std::wstring wide = toWide(name);
  OLECHAR* names = wide.data();
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result = dispatch->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(result)) return std::nullopt;
  return id;
}

/// What a server tells of its errors is thrown away.
std::optional<ComValue> invoke(IDispatch* dispatch, const std::string& name, WORD kind,
                               DISPPARAMS parameters) {
  if (!dispatch) return std::nullopt;
  const auto id = idOf(dispatch, name);
  if (!id) return std::nullopt;
  Variant result;
  EXCEPINFO error{};
  VARIANT* const place = kind == DISPATCH_PROPERTYPUT ? nullptr : result.address();
  const HRESULT status = dispatch->Invoke(*id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                          place, &error, nullptr);
  SysFreeString(error.bstrSource);
  SysFreeString(error.bstrDescription);
  SysFreeString(error.bstrHelpFile);
  if (FAILED(status)) return std::nullopt;
  return result.value();
}

void releaseDispatch(IDispatch* dispatch) {
  if (dispatch) dispatch->Release();
}

}  // namespace

ComSession::ComSession() : is_open_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

ComSession::~ComSession() {
  if (is_open_) CoUninitialize();
}

ComObject::ComObject(IDispatch* dispatch) : dispatch_(dispatch, releaseDispatch) {}

ComObject ComObject::create(const std::string& program_id) {
  CLSID class_id{};
  if (FAILED(CLSIDFromProgID(toWide(program_id).c_str(), &class_id))) return {};
  void* object = nullptr;
  constexpr DWORD kAnyServer = CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER;
  if (FAILED(CoCreateInstance(class_id, nullptr, kAnyServer, IID_IDispatch, &object))) return {};
  return ComObject(static_cast<IDispatch*>(object));
}

std::optional<ComValue> ComObject::property(const std::string& name) const {
  return invoke(get(), name, DISPATCH_PROPERTYGET, DISPPARAMS{});
}

bool ComObject::setProperty(const std::string& name, const ComValue& value) const {
  Arguments arguments({value});
  DISPPARAMS parameters = arguments.parameters();
  DISPID put = DISPID_PROPERTYPUT;
  parameters.rgdispidNamedArgs = &put;
  parameters.cNamedArgs = 1;
  return invoke(get(), name, DISPATCH_PROPERTYPUT, parameters).has_value();
}

std::optional<ComValue> ComObject::call(const std::string& name,
                                        const std::vector<ComValue>& arguments) const {
  Arguments held(arguments);
  return invoke(get(), name, DISPATCH_METHOD, held.parameters());
}

}  // namespace zel
