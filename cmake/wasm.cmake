# Builds for a browser: Debian's clang with its libraries for WebAssembly. What the libraries leave to the system is in
# window/system/web.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CARDHAVEN_WEB ON)
set(llvm 22)
set(CMAKE_CXX_COMPILER clang++-${llvm})
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_AR llvm-ar)
set(CMAKE_RANLIB llvm-ranlib)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_EXECUTABLE_SUFFIX_CXX .wasm)
# The target's name has a newer form, of which the packaged C library knows nothing.
set(CMAKE_CXX_FLAGS_INIT
  "-Wno-deprecated -fwasm-exceptions -fno-threadsafe-statics -ffunction-sections -fdata-sections")
set(CMAKE_CXX_FLAGS_RELEASE_INIT "-Os -DNDEBUG")
set(CMAKE_CXX_FLAGS_RELEASE "-Os -DNDEBUG")
# The names of functions stay: scripts/asyncify goes by them, and what a host gets has lost them.
set(CMAKE_EXE_LINKER_FLAGS_INIT
  "-nostdlib++ -L/usr/lib/llvm-${llvm}/lib/wasm32-wasi -Wl,--gc-sections,--strip-debug,-z,stack-size=524288")
set(CMAKE_CXX_STANDARD_LIBRARIES "-lc++ -lc++abi")
