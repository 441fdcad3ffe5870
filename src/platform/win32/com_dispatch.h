#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

struct IDispatch;

/// Automation objects whose members are looked up by name at the time of the call. Every call on
/// any of them may fail, and then says so and nothing else. All of it belongs to one thread.
namespace zel {

class ComObject;

/// An argument or a result; monostate is no value, or one of another type.
using ComValue = std::variant<std::monostate, bool, std::int32_t, std::string, ComObject>;

/// Keeps the thread ready for automation while it lives. It outlives the objects.
class ComSession {
 public:
  ComSession();
  ComSession(const ComSession&) = delete;
  ComSession& operator=(const ComSession&) = delete;
  ~ComSession();

 private:
  bool is_open_;
};

/// A share in an automation object, or no object: then every call fails.
class ComObject {
 public:
  ComObject() = default;
  /// Takes over one reference.
  explicit ComObject(IDispatch* dispatch);

  /// Starts the program of an id ("Name.Application"); no object when there is no such program.
  static ComObject create(const std::string& program_id);

  explicit operator bool() const { return dispatch_ != nullptr; }
  IDispatch* get() const { return dispatch_.get(); }

  std::optional<ComValue> property(const std::string& name) const;
  bool setProperty(const std::string& name, const ComValue& value) const;
  std::optional<ComValue> call(const std::string& name,
                               const std::vector<ComValue>& arguments) const;

 private:
  std::shared_ptr<IDispatch> dispatch_;
};

}  // namespace zel
