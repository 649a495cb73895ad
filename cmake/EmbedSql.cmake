# Puts the SQL files of a folder into a library, so that the program needs no files beside it.
#
#   melvark_embed_sql(target FOLDER sqlite SYMBOL sqliteFiles [GENERATED folder file ...])
#
# adds a generated source to the target which defines `std::span<const SqlFile> refhost::SYMBOL()` (declared in
# refhost/database/EmbeddedSql.h): one entry a file, its path inside the folder and its text, sorted by path. GENERATED:
# files that the build writes, as paths inside a folder of the build, stand among those of FOLDER.

if(CMAKE_SCRIPT_MODE_FILE)
  cmake_policy(VERSION 3.22)
  file(GLOB_RECURSE files RELATIVE "${FOLDER}" "${FOLDER}/*.sql")
  string(REPLACE "|" ";" generated "${GENERATED}")
  list(APPEND files ${generated})
  list(SORT files)
  set(entries "")
  foreach(file IN LISTS files)
    if(file IN_LIST generated)
      file(READ "${GENERATED_FOLDER}/${file}" text)
    else()
      file(READ "${FOLDER}/${file}" text)
    endif()
    string(APPEND entries "    {\"${file}\", R\"melvark(${text})melvark\"},\n")
  endforeach()
  file(WRITE "${OUTPUT}"
    "#include \"refhost/database/EmbeddedSql.h\"\n\n"
    "namespace refhost {\n\n"
    "namespace {\n\n"
    "constexpr SqlFile c_Files[] = {\n" "${entries}" "};\n\n"
    "} // namespace\n\n"
    "std::span<const SqlFile> ${SYMBOL}() {\n    return c_Files;\n}\n\n"
    "} // namespace refhost\n")
  return()
endif()

set(melvark_embed_sql_script "${CMAKE_CURRENT_LIST_FILE}")

function(melvark_embed_sql target)
  cmake_parse_arguments(ARG "" "FOLDER;SYMBOL" "GENERATED" ${ARGN})
  list(POP_FRONT ARG_GENERATED generated_folder)
  list(JOIN ARG_GENERATED "|" generated)
  list(TRANSFORM ARG_GENERATED PREPEND "${generated_folder}/")
  set(folder "${CMAKE_CURRENT_SOURCE_DIR}/${ARG_FOLDER}")
  set(output "${CMAKE_CURRENT_BINARY_DIR}/${ARG_SYMBOL}.cpp")
  file(GLOB_RECURSE files CONFIGURE_DEPENDS "${folder}/*.sql")
  add_custom_command(
    OUTPUT "${output}"
    COMMAND "${CMAKE_COMMAND}" "-DFOLDER=${folder}" "-DOUTPUT=${output}" "-DSYMBOL=${ARG_SYMBOL}"
            "-DGENERATED_FOLDER=${generated_folder}" "-DGENERATED=${generated}"
            -P "${melvark_embed_sql_script}"
    DEPENDS ${files} ${ARG_GENERATED} "${melvark_embed_sql_script}"
    COMMENT "Embedding the SQL of ${ARG_FOLDER}"
    VERBATIM)
  target_sources(${target} PRIVATE "${output}")
endfunction()
