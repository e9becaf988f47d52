# SPDX-License-Identifier: MIT
# Installs into a fresh folder, builds the example hosts against what is there and runs them.
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)
file(REMOVE_RECURSE ${WORK})

step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/root)
check_is_installed(${WORK}/root ${WORK}/root)
set(COMMAND ${WORK}/root/bin/lessonconv)
check_desktop(${WORK}/root/share)
check_example_hosts(${WORK}/root)
# Moved away from the folder that it was built in, the command finds the plug-in that was installed with it.
step(${CMAKE_COMMAND} -E rename ${WORK}/root ${WORK}/moved)
step(${WORK}/moved/bin/lessonconv info ${SOURCE}/examples/handwriting --json)
step(${WORK}/moved/bin/lessonconv render ${SOURCE}/examples/handwriting ${WORK}/handwriting.pdf)
step(bash -n ${WORK}/moved/share/bash-completion/completions/lessonconv)
