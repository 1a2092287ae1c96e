# The sound player, and the module with the sound libraries that it loads while the program runs.
find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(CARDHAVEN_SDL REQUIRED IMPORTED_TARGET sdl2 SDL2_mixer)

add_library(cardhaven_soundplayer STATIC
  ${CMAKE_CURRENT_LIST_DIR}/sound.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound_soundfont.cpp)
target_include_directories(cardhaven_soundplayer PUBLIC ${CMAKE_CURRENT_LIST_DIR}/../../..)
target_compile_definitions(cardhaven_soundplayer PRIVATE
  CARDHAVEN_SOUND_MODULE_DIR="${CMAKE_INSTALL_FULL_LIBDIR}/card-haven")
target_link_libraries(cardhaven_soundplayer PUBLIC cardhaven_window Threads::Threads ${CMAKE_DL_LIBS})

add_library(cardhaven-sound MODULE ${CMAKE_CURRENT_LIST_DIR}/sound_sdl.cpp)
# Built beside the program, which looks there first.
set_target_properties(cardhaven-sound PROPERTIES
  PREFIX "" SUFFIX ".so" CXX_VISIBILITY_PRESET hidden LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/app")
target_include_directories(cardhaven-sound PRIVATE ${CMAKE_CURRENT_LIST_DIR}/../../..)
target_link_libraries(cardhaven-sound PRIVATE PkgConfig::CARDHAVEN_SDL)
# The program needs the module only while it runs.
add_dependencies(cardhaven_soundplayer cardhaven-sound)
install(TARGETS cardhaven-sound LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/card-haven)
