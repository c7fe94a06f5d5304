# Shared libraries that are loaded at the first call of one of their functions; otherwise libraries that most pictures do not
# need would take most of the time of a start (docs/decisions/0063).
set(on_demand_can OFF)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64" AND NOT QUORLIN_SANITIZE AND NOT QUORLIN_FUZZ)
  set(on_demand_can ON)
endif()
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
option(QUORLIN_ON_DEMAND "Load libraries when they are needed" ${on_demand_can})
if(QUORLIN_ON_DEMAND)
  enable_language(ASM)
endif()

# quorlin_links_on_demand(room PACKAGE...): the room uses the packages of pkg-config with these prefixes; programs that link
# the room do not link them. Libraries that the toolkit links anyway are linked as usual.
function(quorlin_links_on_demand room)
  if(NOT QUORLIN_ON_DEMAND)
    foreach(package ${ARGN})
      target_link_libraries(${room} PRIVATE PkgConfig::${package})
    endforeach()
    return()
  endif()
  set(libraries "")
  foreach(package ${ARGN})
    target_include_directories(${room} SYSTEM PRIVATE ${${package}_INCLUDE_DIRS})
    target_compile_options(${room} PRIVATE ${${package}_CFLAGS_OTHER})
    list(APPEND libraries ${${package}_LINK_LIBRARIES})
  endforeach()
  list(REMOVE_DUPLICATES libraries)
  set(linked ${libraries})
  list(FILTER linked INCLUDE REGEX "/lib(glib-2\\.0|m|z)\\.so")
  list(REMOVE_ITEM libraries ${linked})
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${room}_on_demand.S)
  set(needs ${CMAKE_CURRENT_BINARY_DIR}/${room}_needs.S)
  add_custom_command(OUTPUT ${source} ${needs}
    COMMAND ${CMAKE_COMMAND} -E env NM=${CMAKE_NM} READELF=${CMAKE_READELF}
      ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/cmake/on_demand.py ${source} ${needs} $<TARGET_FILE:${room}> ${libraries}
    DEPENDS ${room} ${PROJECT_SOURCE_DIR}/cmake/on_demand.py VERBATIM)
  add_library(${room}-on-demand STATIC ${source} ${PROJECT_SOURCE_DIR}/cmake/on_demand.cpp)
  target_link_libraries(${room}-on-demand PRIVATE quorlin-common ${CMAKE_DL_LIBS} INTERFACE ${linked})
  # A library that refers to all that is called, and is not installed, shows the package what it depends on.
  add_library(${room}-needs SHARED ${needs})
  set_target_properties(${room}-needs PROPERTIES AUTOMOC OFF LINKER_LANGUAGE CXX)
  target_link_options(${room}-needs PRIVATE -Wl,--no-as-needed)
  target_link_libraries(${room}-needs PRIVATE ${libraries})
  # One of the two runs the command that writes both sources.
  add_dependencies(${room}-needs ${room}-on-demand)
  # Not a dependency of the room, since it is made from it.
  set_property(TARGET ${room} APPEND PROPERTY INTERFACE_LINK_LIBRARIES ${room}-on-demand)
endfunction()
