# The contract as pages of a reference, made from the comments of the installed headers: target "reference", into
# reference/html of the build folder. Only where doxygen is installed. Its warnings, an undocumented member among them,
# are errors.

find_package(Doxygen QUIET)
if(NOT DOXYGEN_FOUND)
  return()
endif()

set(inner ${melvark_inner_headers})
list(TRANSFORM inner PREPEND "*/")
set(filter ${PROJECT_SOURCE_DIR}/docs/reference/without-undocumented-overrides)

set(DOXYGEN_PROJECT_BRIEF "the contract between a host and its plug-ins")
set(DOXYGEN_PROJECT_NUMBER ${MELVARK_VERSION})
set(DOXYGEN_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/reference)
set(DOXYGEN_EXCLUDE_PATTERNS ${inner})
set(DOXYGEN_FILE_PATTERNS *.h *.md)
set(DOXYGEN_FILTER_PATTERNS "*.h=${filter}")
set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
set(DOXYGEN_STRIP_FROM_PATH ${PROJECT_SOURCE_DIR})
set(DOXYGEN_STRIP_FROM_INC_PATH ${PROJECT_SOURCE_DIR})
set(DOXYGEN_SORT_MEMBER_DOCS NO)
set(DOXYGEN_TOC_INCLUDE_HEADINGS 0)
set(DOXYGEN_USE_MDFILE_AS_MAINPAGE docs/contract.md)
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)
set(DOXYGEN_QUIET YES)
# Plain pages: no scripts, no pictures, nothing that changes from build to build.
set(DOXYGEN_CLASS_GRAPH TEXT)
set(DOXYGEN_HAVE_DOT NO)
set(DOXYGEN_HTML_DYNAMIC_MENUS NO)
set(DOXYGEN_HTML_TIMESTAMP NO)
set(DOXYGEN_SEARCHENGINE NO)
set(DOXYGEN_VERBATIM_HEADERS NO)
set(DOXYGEN_HTML_HEADER ${PROJECT_SOURCE_DIR}/docs/reference/header.html)
set(DOXYGEN_HTML_FOOTER ${PROJECT_SOURCE_DIR}/docs/reference/footer.html)
set(DOXYGEN_HTML_EXTRA_STYLESHEET ${PROJECT_SOURCE_DIR}/docs/reference/plain.css)
set(DOXYGEN_GENERATE_LATEX NO)

doxygen_add_docs(reference host docs/contract.md docs/compatibility.md COMMENT "Making the reference of the contract")

install(DIRECTORY ${PROJECT_BINARY_DIR}/reference/html/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/melvark-dev/reference
  COMPONENT development OPTIONAL PATTERN "*.js" EXCLUDE)
