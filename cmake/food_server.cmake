# The food server: a library of all but its main file, and the program over it. Neither sees Qt.
find_package(SQLite3 3.38 REQUIRED)
find_package(PostgreSQL 14 REQUIRED)
find_package(Threads REQUIRED)
find_path(MICROHTTPD_INCLUDE_DIR microhttpd.h REQUIRED)
find_library(MICROHTTPD_LIBRARY microhttpd REQUIRED)

file(GLOB food_server_sources CONFIGURE_DEPENDS tools/food_server/*.cpp)
list(REMOVE_ITEM food_server_sources ${CMAKE_SOURCE_DIR}/tools/food_server/main.cpp)
list(APPEND food_server_sources ${CMAKE_SOURCE_DIR}/tools/food_table.cpp)

# Makes kelvora_food_server<suffix> and kelvora-food-server<suffix> over kelvora_logic<suffix>.
function(add_food_server suffix)
  add_library(kelvora_food_server${suffix} STATIC ${food_server_sources})
  target_include_directories(kelvora_food_server${suffix}
                             PUBLIC ${CMAKE_SOURCE_DIR}/tools
                             PRIVATE ${MICROHTTPD_INCLUDE_DIR})
  target_link_libraries(kelvora_food_server${suffix}
                        PUBLIC kelvora_logic${suffix}
                        PRIVATE SQLite::SQLite3 PostgreSQL::PostgreSQL ${MICROHTTPD_LIBRARY} Threads::Threads)
  target_compile_options(kelvora_food_server${suffix} PRIVATE ${ARGN})

  add_executable(kelvora-food-server${suffix} ${CMAKE_SOURCE_DIR}/tools/food_server/main.cpp)
  target_link_libraries(kelvora-food-server${suffix} PRIVATE kelvora_food_server${suffix})
  target_compile_options(kelvora-food-server${suffix} PRIVATE ${ARGN})
  target_compile_definitions(kelvora-food-server${suffix}
                             PRIVATE KELVORA_VERSION="${PROJECT_VERSION}")
endfunction()

# The same under the sanitizers; the target "sanitized" makes it.
function(add_sanitized_food_server)
  add_food_server(_sanitized ${ARGN} ${sanitized_options} -fsanitize=fuzzer-no-link)
  set_target_properties(kelvora_food_server_sanitized PROPERTIES EXCLUDE_FROM_ALL ON)
  set_target_properties(kelvora-food-server_sanitized PROPERTIES
                        EXCLUDE_FROM_ALL ON
                        OUTPUT_NAME kelvora-food-server
                        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/sanitized)
  add_dependencies(sanitized kelvora-food-server_sanitized)
endfunction()
