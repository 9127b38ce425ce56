# The three layers of the program as libraries. The logic is every file that is neither a window nor
# part of platform/qt; it never sees a Qt include path.
file(GLOB_RECURSE all_sources CONFIGURE_DEPENDS src/*.cpp)
list(REMOVE_ITEM all_sources ${CMAKE_SOURCE_DIR}/src/main.cpp)
set(qt_platform_sources ${all_sources})
list(FILTER qt_platform_sources INCLUDE REGEX "/src/platform/qt/")
set(window_sources ${all_sources})
list(FILTER window_sources EXCLUDE REGEX "/src/platform/qt/")
list(FILTER window_sources INCLUDE REGEX "_(window|dialog|panel)\\.cpp$")
set(logic_sources ${all_sources})
list(REMOVE_ITEM logic_sources ${qt_platform_sources} ${window_sources})

# What tests run through for seconds is optimized a little in their builds too; all else is compiled
# faster than it would run. The precompiled headers are made for code that is not.
set(hot_sources core/exchange_sort core/store core/text core/text_list core/text_search
                food/import/cell_amount food/import/cell_text food/import/delimited
                food/import/food_line food/import/mapping language/language_file)
list(TRANSFORM hot_sources PREPEND ${CMAKE_SOURCE_DIR}/src/)
list(TRANSFORM hot_sources APPEND .cpp)
if(CMAKE_BUILD_TYPE STREQUAL Debug)
  set_source_files_properties(${hot_sources} PROPERTIES COMPILE_OPTIONS -O1
                                                        SKIP_PRECOMPILE_HEADERS ON)
endif()

# Makes kelvora_logic<suffix>. The options are for the compiler, and are its own.
function(add_logic suffix)
  add_library(kelvora_logic${suffix} STATIC ${logic_sources})
  target_link_libraries(kelvora_logic${suffix} PUBLIC kelvora_flags LibArchive::LibArchive)
  target_compile_options(kelvora_logic${suffix} PRIVATE ${ARGN})
  target_precompile_headers(kelvora_logic${suffix} PRIVATE ${standard_headers})
endfunction()

# Makes kelvora_platform_qt<suffix>, kelvora_windows<suffix> and the program kelvora-food<suffix>
# over kelvora_logic<suffix>.
function(add_windows suffix)
  add_library(kelvora_platform_qt${suffix} STATIC ${qt_platform_sources}
                                                  ${CMAKE_SOURCE_DIR}/resources/kelvora.qrc)
  target_link_libraries(kelvora_platform_qt${suffix} PUBLIC kelvora_logic${suffix} Qt6::Widgets
                                                            Qt6::Svg CURL::libcurl Cups::Cups)
  target_compile_options(kelvora_platform_qt${suffix} PRIVATE ${ARGN})
  target_precompile_headers(kelvora_platform_qt${suffix} PRIVATE ${standard_headers} ${qt_headers})
  set_target_properties(kelvora_platform_qt${suffix} PROPERTIES AUTORCC ON AUTOMOC ON)

  add_library(kelvora_windows${suffix} STATIC ${window_sources})
  set_target_properties(kelvora_windows${suffix} PROPERTIES AUTOMOC ON)
  target_link_libraries(kelvora_windows${suffix} PUBLIC kelvora_platform_qt${suffix})
  target_compile_options(kelvora_windows${suffix} PRIVATE ${ARGN})
  target_precompile_headers(kelvora_windows${suffix} REUSE_FROM kelvora_platform_qt${suffix})

  add_executable(kelvora-food${suffix} ${CMAKE_SOURCE_DIR}/src/main.cpp)
  target_link_libraries(kelvora-food${suffix} PRIVATE kelvora_windows${suffix})
  target_compile_options(kelvora-food${suffix} PRIVATE ${ARGN})
  target_precompile_headers(kelvora-food${suffix} REUSE_FROM kelvora_platform_qt${suffix})
endfunction()
