// Throwing and catching. The compiler writes WebAssembly's own exceptions and leaves three things to the
// library: an object that is thrown and kept while it is caught, the choice of the handler that takes it, and
// the order of those that are caught one within the other. The packaged library is built without them, so
// they are here.
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <typeinfo>

// The tag under which all of C++ throws, whose value is the object.
__asm__(
    ".globl __cpp_exception\n"
    ".tagtype __cpp_exception i32\n"
    "__cpp_exception:\n");

namespace {

// Lies right before the object that is thrown.
struct alignas(16) Header {
  const std::type_info* type = nullptr;
  void* (*destroy)(void*) = nullptr;  // destructors give back their object here
  Header* outer = nullptr;            // caught before this one, and not let go yet
  int handlers = 0;                   // that hold it; below 0 when it was thrown on by the innermost
  void* adjusted = nullptr;           // the object as its handler's type sees it
};

Header* caught = nullptr;

Header* HeaderOf(void* object) { return static_cast<Header*>(object) - 1; }

// What stands in the virtual table of a type's description behind its destructors.
class Described : public std::type_info {
 public:
  virtual void Unused1() const = 0;
  virtual void Unused2() const = 0;
  // Whether a handler of this type takes what was thrown; its address as that type.
  virtual bool CanCatch(const std::type_info* thrown, void*& object) const = 0;
};

uintptr_t ReadUnsigned(const uint8_t*& at) {
  uintptr_t value = 0;
  unsigned shift = 0;
  uint8_t byte;
  do {
    byte = *at++;
    value |= static_cast<uintptr_t>(byte & 0x7f) << shift;
    shift += 7;
  } while (byte & 0x80);
  return value;
}

intptr_t ReadSigned(const uint8_t*& at) {
  uintptr_t value = 0;
  unsigned shift = 0;
  uint8_t byte;
  do {
    byte = *at++;
    value |= static_cast<uintptr_t>(byte & 0x7f) << shift;
    shift += 7;
  } while (byte & 0x80);
  if (byte & 0x40 && shift < 8 * sizeof value) value |= ~uintptr_t(0) << shift;
  return static_cast<intptr_t>(value);
}

constexpr uint8_t kAbsent = 0xff;

// The number of the first handler at a landing place that takes the exception, by the function's table; 0 for
// none.
intptr_t HandlerFor(const uint8_t* table, uintptr_t landing, Header& thrown) {
  if (*table++ != kAbsent) ReadUnsigned(table);  // where landing places begin: they are numbers here
  const uint8_t* types = nullptr;
  if (*table++ != kAbsent) {
    const uintptr_t length = ReadUnsigned(table);
    types = table + length;
  }
  ++table;  // how the numbers of the landing places are written: always alike
  const uintptr_t length = ReadUnsigned(table);
  const uint8_t* const actions = table + length;
  uintptr_t action = 0;
  for (uintptr_t i = 0; i <= landing && table < actions; ++i) {
    ReadUnsigned(table);
    action = ReadUnsigned(table);
  }
  if (action == 0) return 0;
  for (const uint8_t* at = actions + action - 1;;) {
    const intptr_t number = ReadSigned(at);
    if (number > 0) {
      const auto* const type = reinterpret_cast<const Described* const*>(types)[-number];
      void* object = &thrown + 1;
      if (!type || type->CanCatch(thrown.type, object)) {
        thrown.adjusted = object;
        return number;
      }
    }
    const uint8_t* next = at;
    const intptr_t way = ReadSigned(next);
    if (way == 0) return 0;
    at += way;
  }
}

[[noreturn]] void Throw(Header& header) { __builtin_wasm_throw(0, &header + 1); }

}  // namespace

extern "C" {

// What a landing place tells and is told.
struct LandingPad {
  uintptr_t index;
  const uint8_t* table;
  intptr_t handler;
};
LandingPad __wasm_lpad_context = {};

int __gxx_wasm_personality_v0() { std::abort(); }  // named by the compiler, and never called

int _Unwind_CallPersonality(void* object) {
  Header& thrown = *HeaderOf(object);
  __wasm_lpad_context.handler = HandlerFor(__wasm_lpad_context.table, __wasm_lpad_context.index, thrown);
  return 0;
}

void* __cxa_allocate_exception(size_t size) {
  auto* const header = static_cast<Header*>(std::aligned_alloc(16, (sizeof(Header) + size + 15) / 16 * 16));
  if (!header) std::abort();
  *header = Header();
  return header + 1;
}

void __cxa_free_exception(void* object) { std::free(HeaderOf(object)); }

void __cxa_throw(void* object, std::type_info* type, void* (*destroy)(void*)) {
  Header& header = *HeaderOf(object);
  header.type = type;
  header.destroy = destroy;
  Throw(header);
}

void* __cxa_get_exception_ptr(void* object) { return HeaderOf(object)->adjusted; }

void* __cxa_begin_catch(void* object) {
  Header* const header = HeaderOf(object);
  header->handlers = std::abs(header->handlers) + 1;
  if (header != caught) {
    header->outer = caught;
    caught = header;
  }
  return header->adjusted;
}

void __cxa_end_catch() {
  Header* const header = caught;
  if (!header) return;
  if (header->handlers < 0) {
    // On its way again: who catches it next keeps it.
    if (++header->handlers == 0) caught = header->outer;
    return;
  }
  if (--header->handlers > 0) return;
  caught = header->outer;
  if (header->destroy) header->destroy(header + 1);
  std::free(header);
}

void __cxa_rethrow() {
  if (!caught) std::terminate();
  caught->handlers = -caught->handlers;
  Throw(*caught);
}

}  // extern "C"
