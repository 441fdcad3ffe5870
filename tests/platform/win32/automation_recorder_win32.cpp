#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <ole2.h>
#include <oleauto.h>

#include "platform/win32/automation_recorder.h"
#include "platform/win32/text_encoding.h"

namespace zel::test {
namespace {

using Record = AutomationRecorder::Record;

// The class of the recorded object; any number that nobody else uses.
constexpr CLSID kClass = {
    0x7A1E6C52, 0x3B0D, 0x4D7E, {0x9C, 0x41, 0x5A, 0x45, 0x4C, 0x52, 0x45, 0x43}};
constexpr const char* kClassText = "{7A1E6C52-3B0D-4D7E-9C41-5A454C524543}";

std::string textOf(const VARIANT& value) {
  switch (value.vt) {
    case VT_BOOL: return value.boolVal == VARIANT_FALSE ? "false" : "true";
    case VT_I4: return std::to_string(value.lVal);
    case VT_BSTR: return "'" + fromWide({value.bstrVal, SysStringLen(value.bstrVal)}) + "'";
    default: return "?";
  }
}

/// Both the server's object and its factory; lives as long as the program.
class Object : public IDispatch {
 public:
  explicit Object(Record& record) : record_(record) {}
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IDispatch);
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID,
                                          DISPID* id) override {
    names_.push_back(fromWide(names[0]));
    *id = static_cast<DISPID>(names_.size());
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO*, UINT*) override {
    const std::string& name = names_.at(static_cast<std::size_t>(id) - 1);
    std::string values;
    for (UINT i = parameters->cArgs; i > 0; --i)
      values += (values.empty() ? "" : ", ") + textOf(parameters->rgvarg[i - 1]);
    if (kind == DISPATCH_PROPERTYPUT) {
      const bool named =
          parameters->cNamedArgs == 1 && parameters->rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
      record_.calls.push_back("put " + name + "=" + (named ? values : "not named"));
      return S_OK;
    }
    const bool is_get = kind == DISPATCH_PROPERTYGET;
    record_.calls.push_back(is_get ? "get " + name : "call " + name + "(" + values + ")");
    if (result) answer(name, *result);
    return S_OK;
  }

 private:
  void answer(const std::string& name, VARIANT& result) {
    if (name == record_.busy_property) {
      result.vt = VT_BOOL;
      result.boolVal = record_.busy_for > 0 ? VARIANT_TRUE : VARIANT_FALSE;
      --record_.busy_for;
    } else {
      result.vt = VT_DISPATCH;
      result.pdispVal = this;
    }
  }

  Record& record_;
  std::vector<std::string> names_;  // a member's number is its place, counted from 1
};

class Factory : public IClassFactory {
 public:
  explicit Factory(Record& record) : object_(record) {}
  Factory(const Factory&) = delete;
  Factory& operator=(const Factory&) = delete;
  virtual ~Factory() = default;

  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IClassFactory);
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
    return object_.QueryInterface(id, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  Object object_;
};

}  // namespace

AutomationRecorder::AutomationRecorder(const std::string& program_id, std::string busy_property,
                                       int busy_for)
    : record_{{}, std::move(busy_property), busy_for} {
  const std::string key = program_id + "\\CLSID";
  RegSetValueA(HKEY_CLASSES_ROOT, key.c_str(), REG_SZ, kClassText, 0);
  DWORD cookie = 0;
  // The factory outlives the registration and is left to the end of the process.
  if (SUCCEEDED(CoRegisterClassObject(kClass, new Factory(record_), CLSCTX_INPROC_SERVER,
                                      REGCLS_MULTIPLEUSE, &cookie)))
    cookie_ = cookie;
}

AutomationRecorder::~AutomationRecorder() {
  if (cookie_ != 0) CoRevokeClassObject(cookie_);
}

}  // namespace zel::test
