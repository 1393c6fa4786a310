# The icons the program ships: the SVG files that gui/icons/fallback_icons.txt
# names, read from the icon sets installed under /usr/share/icons (Debian's
# tango-icon-theme and adwaita-icon-theme) and embedded as Qt resources under
# :/quillbox/icons/scalable/<name>.svg, with the set's pixel drawings of the
# same icon as :/quillbox/icons/<N>x<N>/<name>.png where it has them, and the
# program's own icon as :/quillbox/icons/scalable/quillbox.svg. The resource
# file is generated in the build folder; nothing of the icon sets is kept in
# the source tree.
#
# Sets QB_FALLBACK_ICON_SOURCES to the generated sources to build into the GUI
# library, and QB_FALLBACK_ICON_NAMES to the icon names shipped.

set(table ${CMAKE_CURRENT_SOURCE_DIR}/gui/icons/fallback_icons.txt)
set(program_icon ${CMAKE_CURRENT_SOURCE_DIR}/packaging/quillbox.svg)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})

file(STRINGS ${table} rows REGEX "^[^#]")
set(entries "")
set(QB_FALLBACK_ICON_NAMES "")
foreach(row ${rows})
  string(REGEX REPLACE "[ \t]+" ";" fields "${row}")
  list(LENGTH fields count)
  if(NOT count EQUAL 3)
    message(FATAL_ERROR "${table}: a line needs a name, an icon set and a file: '${row}'")
  endif()
  list(GET fields 0 name)
  list(GET fields 1 set)
  list(GET fields 2 file)
  if(NOT DEFINED QB_ICON_SET_${set})
    find_path(QB_ICON_SET_${set} index.theme PATHS /usr/share/icons/${set} NO_DEFAULT_PATH)
  endif()
  set(source ${QB_ICON_SET_${set}}/scalable/${file})
  if(NOT QB_ICON_SET_${set} OR NOT EXISTS ${source})
    message(FATAL_ERROR "Icon '${name}' needs ${source}: install the ${set} icon set "
                        "(scripts/install-deps.sh)")
  endif()
  get_filename_component(source ${source} REALPATH)
  string(APPEND entries "    <file alias=\"scalable/${name}.svg\">${source}</file>\n")
  # The set's drawings for small sizes, where it has them: sharper than the
  # SVG drawn small.
  string(REGEX REPLACE "\\.svg$" ".png" bitmap ${file})
  foreach(size 16 22 24 32)
    set(drawn ${QB_ICON_SET_${set}}/${size}x${size}/${bitmap})
    if(EXISTS ${drawn})
      get_filename_component(drawn ${drawn} REALPATH)
      string(APPEND entries "    <file alias=\"${size}x${size}/${name}.png\">${drawn}</file>\n")
    endif()
  endforeach()
  list(APPEND QB_FALLBACK_ICON_NAMES ${name})
endforeach()

set(qrc ${CMAKE_CURRENT_BINARY_DIR}/fallback-icons/fallback_icons.qrc)
file(CONFIGURE OUTPUT ${qrc} CONTENT
"<!DOCTYPE RCC>
<RCC version=\"1.0\">
  <qresource prefix=\"/quillbox/icons\">
    <file alias=\"scalable/quillbox.svg\">${program_icon}</file>
${entries}  </qresource>
</RCC>
")
qt_add_resources(QB_FALLBACK_ICON_SOURCES ${qrc})
