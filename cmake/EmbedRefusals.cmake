# Puts the table of refusals into a library and, as a function of the server, among its SQL.
#
#   melvark_embed_refusals(target FILE refusals.txt SQL output)
#
# adds a generated source to the target which defines `std::span<const RefusalRow> refusalRows()` (declared in
# refhost/database/RefusalTable.h), and writes the function refusal_sentence for the server to the file "output".
# A line that is no comment and does not begin with a code fails the build.

if(CMAKE_SCRIPT_MODE_FILE)
  cmake_policy(VERSION 3.22)
  file(STRINGS "${FILE}" lines ENCODING UTF-8)
  set(rows "")
  set(values "")
  foreach(line IN LISTS lines)
    if(line STREQUAL "" OR line MATCHES "^#")
      continue()
    endif()
    if(NOT line MATCHES "^(ML[0-9][0-9][0-9](/[a-z]+)?) (.+[.])$")
      message(FATAL_ERROR "${FILE}: neither a comment nor a code with its sentence: ${line}")
    endif()
    set(key "${CMAKE_MATCH_1}")
    set(sentence "${CMAKE_MATCH_3}")
    if(key IN_LIST keys)
      message(FATAL_ERROR "${FILE}: ${key} stands twice")
    endif()
    list(APPEND keys "${key}")
    string(APPEND rows "    {\"${key}\", R\"melvark(${sentence})melvark\"},\n")
    string(REPLACE "'" "''" quoted "${sentence}")
    if(values)
      string(APPEND values ",\n")
    endif()
    string(APPEND values "        ('${key}', '${quoted}')")
  endforeach()
  file(WRITE "${SOURCE}"
    "#include \"refhost/database/RefusalTable.h\"\n\n"
    "namespace refhost {\n\n"
    "namespace {\n\n"
    "constexpr RefusalRow c_Rows[] = {\n" "${rows}" "};\n\n"
    "} // namespace\n\n"
    "std::span<const RefusalRow> refusalRows() {\n    return c_Rows;\n}\n\n"
    "} // namespace refhost\n")
  file(WRITE "${SQL}"
    "-- The sentence of a refusal with its places {1} to {9}, null for a key that there is none of.\n"
    "create function refusal_sentence(refusal text) returns text\n"
    "language sql immutable as $$\n"
    "    select r.SENTENCE\n"
    "    from (values\n" "${values}" ") r (REFUSAL, SENTENCE)\n"
    "    where r.REFUSAL = refusal_sentence.refusal\n"
    "$$;\n")
  return()
endif()

set(melvark_embed_refusals_script "${CMAKE_CURRENT_LIST_FILE}")

function(melvark_embed_refusals target)
  cmake_parse_arguments(ARG "" "FILE;SQL" "" ${ARGN})
  set(file "${CMAKE_CURRENT_SOURCE_DIR}/${ARG_FILE}")
  set(source "${CMAKE_CURRENT_BINARY_DIR}/refusalRows.cpp")
  add_custom_command(
    OUTPUT "${source}" "${ARG_SQL}"
    COMMAND "${CMAKE_COMMAND}" "-DFILE=${file}" "-DSOURCE=${source}" "-DSQL=${ARG_SQL}"
            -P "${melvark_embed_refusals_script}"
    DEPENDS "${file}" "${melvark_embed_refusals_script}"
    COMMENT "Embedding the refusals"
    VERBATIM)
  target_sources(${target} PRIVATE "${source}")
endfunction()
