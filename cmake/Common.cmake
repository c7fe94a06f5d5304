# One target for what every library and program shares: warnings, definitions, sanitizers.
find_program(QUORLIN_CCACHE ccache)
if(QUORLIN_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${QUORLIN_CCACHE})
endif()

add_library(quorlin-common INTERFACE)
target_compile_features(quorlin-common INTERFACE cxx_std_20)
target_include_directories(quorlin-common INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(quorlin-common INTERFACE
  QT_NO_KEYWORDS              # GLib headers use "signals" as a name
  QT_NO_CAST_FROM_ASCII       # every literal says how it is encoded
  QT_NO_CAST_TO_ASCII
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_FOREACH
  QUORLIN_VERSION="${PROJECT_VERSION}")
target_compile_options(quorlin-common INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wswitch -Wimplicit-fallthrough
  -Wformat=2 -Wnull-dereference -fno-math-errno)
if(QUORLIN_WERROR)
  target_compile_options(quorlin-common INTERFACE -Werror)
endif()
if(QUORLIN_SANITIZE)
  target_compile_options(quorlin-common INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(quorlin-common INTERFACE -fsanitize=address,undefined)
endif()

# Reading the toolkit's headers is most of what a source file costs, so they are read once a room. Sources still include
# what they use: the header checks and the sanitizer build compile without.
option(QUORLIN_PRECOMPILE "Precompile the headers of the toolkit" ON)
set(QUORLIN_CORE_HEADERS <algorithm> <array> <cmath> <functional> <memory> <optional> <string> <vector>
  <QByteArray> <QCoreApplication> <QDateTime> <QDir> <QFile> <QFileInfo> <QHash> <QList> <QMap> <QString> <QStringList>
  <QUrl> <QVariant> <QtEndian>)
set(QUORLIN_SCRIPT_HEADERS ${QUORLIN_CORE_HEADERS} <QJSEngine> <QJSValue> <QLocale> <QPointer> <QQmlEngine> <QTimer>)
set(QUORLIN_WINDOW_HEADERS ${QUORLIN_CORE_HEADERS} <QAbstractItemModel> <QApplication> <QJSEngine> <QJSValue> <QKeyEvent> <QLabel>
  <QLocale> <QPainter> <QPainterPath> <QPointer> <QQmlEngine> <QStyledItemDelegate> <QTimer> <QWidget>)

# quorlin_precompile(target HEADER...)
function(quorlin_precompile target)
  if(QUORLIN_PRECOMPILE)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# quorlin_library(name SOURCES ... LINKS ... PRECOMPILED ...): a room of the house.
function(quorlin_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS;PRIVATE_LINKS;PRECOMPILED" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC quorlin-common ${arg_LINKS} PRIVATE ${arg_PRIVATE_LINKS})
  quorlin_precompile(${name} ${QUORLIN_CORE_HEADERS} ${arg_PRECOMPILED})
endfunction()
