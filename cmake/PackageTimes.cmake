# Read by CPack before it packs: all files bear the time of the release, so that the same files make the same package.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  set(ENV{SOURCE_DATE_EPOCH} "${CPACK_ZY_RELEASE_TIME}")
endif()
