# SPDX-License-Identifier: MIT
# cmake -D BUILD=TREE -D PREFIX=FOLDER -P install.cmake: installs into a fresh folder, so that nothing of an
# earlier install hides what is missing from this one. Files keep their times: nothing is rebuilt for it.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}"
    COMMAND_ERROR_IS_FATAL ANY)
