# Targets:
#
#   vmf_map_oc_bgp::vmf_map_oc_bgp     The mapping library. It leaves the operations of vmf_map_platform.h undefined:
#                                      the program that links it defines every one of them, or the linker names what
#                                      is missing. A plugin that a framework loads with its own platform links with
#                                      -Wl,--allow-shlib-undefined.
#   vmf_map_oc_bgp::embedded_platform  The library with a platform in memory: trees, texts, trace, sessions, system
#                                      database, as the command ocbgp has it. Its headers are names.h, tree.h, trace.h,
#                                      observer.h and system_database.h. Not there if it was built without the host.
include(${CMAKE_CURRENT_LIST_DIR}/vmf_map_oc_bgp-targets.cmake)

# Whole: it is the library that needs the archive's members, not the program.
if(TARGET vmf_map_oc_bgp::embedded_platform_archive AND NOT TARGET vmf_map_oc_bgp::embedded_platform)
  add_library(vmf_map_oc_bgp::embedded_platform INTERFACE IMPORTED)
  target_link_libraries(vmf_map_oc_bgp::embedded_platform INTERFACE
    -Wl,--push-state,--whole-archive vmf_map_oc_bgp::embedded_platform_archive -Wl,--pop-state)
endif()
