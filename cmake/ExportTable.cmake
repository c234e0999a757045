# Script mode: merges the exports.def tables of every subsystem into the
# export frame of libtavs.
#   -DDEFS=<;-list of exports.def files>  -DOUT=<directory>
# Writes, in byte-wise order of the exported names:
#   tavs_entries.S    one 16-byte entry per name, jumping through its slot
#                     in the slot table (writable data, same order)
#   tavs.map          the version script: those names and nothing else
#   tavs_bodies.h     declarations of the bodies named <export>_body, typed
#                     from the public prototype, so a body that disagrees
#                     with tavs.h does not compile
#   tavs_exports.txt  the names, one a line (read by the tests)
# Each output is replaced only when its text changes.

set(entries "")
foreach(def IN LISTS DEFS)
  file(STRINGS "${def}" lines REGEX "^[ \t]*TAVS_ENTRY")
  foreach(line IN LISTS lines)
    if(NOT line MATCHES "^[ \t]*TAVS_ENTRY\\([ \t]*([A-Za-z0-9_]+)[ \t]*,[ \t]*([A-Za-z0-9_]+)[ \t]*\\)")
      message(FATAL_ERROR "${def}: malformed line: ${line}")
    endif()
    set(name "${CMAKE_MATCH_1}")
    set(body "${CMAKE_MATCH_2}")
    if(DEFINED body_of_${name})
      message(FATAL_ERROR "${def}: ${name} is listed twice")
    endif()
    set(body_of_${name} "${body}")
    list(APPEND entries "${name}")
  endforeach()
endforeach()
list(SORT entries COMPARE STRING CASE SENSITIVE)
list(LENGTH entries count)

set(asm "/* Generated from the exports.def tables; do not edit. */\n")
string(APPEND asm "    .section .note.GNU-stack,\"\",@progbits\n    .text\n")
set(slots "    .data\n    .p2align 4\n    .type tavs_slot_table, @object\ntavs_slot_table:\n")
set(map "{\n  global:\n")
set(bodies "/* Generated from the exports.def tables; do not edit. */\n#pragma once\n")
set(names "")
set(declared "")
set(index 0)
foreach(name IN LISTS entries)
  set(body "${body_of_${name}}")
  math(EXPR offset "${index} * 8")
  string(APPEND asm
    "    .p2align 4\n    .globl ${name}\n    .type ${name}, @function\n${name}:\n"
    "    leaq tavs_slot_table+${offset}(%rip), %r11\n    jmpq *(%r11)\n    .size ${name}, .-${name}\n")
  string(APPEND slots "    .quad ${body}\n")
  string(APPEND map "    ${name};\n")
  string(APPEND names "${name}\n")
  if(body STREQUAL "${name}_body")
    string(APPEND bodies "extern \"C\" TAVS_BODY decltype(::${name}) ${body};\n")
  endif()
  math(EXPR index "${index} + 1")
endforeach()
string(APPEND map "  local: *;\n};\n")
math(EXPR table_bytes "${count} * 8")
string(APPEND slots "    .size tavs_slot_table, ${table_bytes}\n")

function(write_if_changed path text)
  if(EXISTS "${path}")
    file(READ "${path}" old)
    if(old STREQUAL text)
      return()
    endif()
  endif()
  file(WRITE "${path}" "${text}")
endfunction()

write_if_changed("${OUT}/tavs_entries.S" "${asm}${slots}")
write_if_changed("${OUT}/tavs.map" "${map}")
write_if_changed("${OUT}/tavs_bodies.h" "${bodies}")
write_if_changed("${OUT}/tavs_exports.txt" "${names}")
message(STATUS "export table: ${count} names")
