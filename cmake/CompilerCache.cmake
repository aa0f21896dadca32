# SPDX-License-Identifier: MIT
# Uses ccache where it is installed. Paths are made relative to the checkout before they are hashed, so that two
# checkouts of the same sources share one cache.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}"
                                    CCACHE_NOHASHDIR=1 "${CCACHE_PROGRAM}")
endif()
