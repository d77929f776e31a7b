# SPDX-License-Identifier: MIT
# The archive keeps its settings in itself: the program looks for this folder beside its bin folder.
if(CPACK_GENERATOR STREQUAL ZIP)
    file(WRITE "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/settings/README.txt"
        "The program keeps its settings in this folder. Without it they are kept in the registry.\r\n")
endif()
