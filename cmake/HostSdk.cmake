# The host's SDK: the vendor's when MOVIRA_SDK_DIR names it, the stand-in of this tree otherwise.
# Both give the targets Movira::PluginQt and Movira::CustomWidgets and the same include lines.

set(MOVIRA_SDK_DIR "" CACHE PATH "Root of a vendor SDK (include/ and lib/); empty builds the stand-in SDK")

function(movira_import_library target name include_folder)
    find_library(MOVIRA_${name}_LIBRARY NAMES ${name} PATHS "${MOVIRA_SDK_DIR}"
        PATH_SUFFIXES lib lib64 "${CMAKE_INSTALL_LIBDIR}" NO_DEFAULT_PATH REQUIRED)
    find_path(MOVIRA_${name}_INCLUDE NAMES "${include_folder}" PATHS "${MOVIRA_SDK_DIR}/include"
        NO_DEFAULT_PATH REQUIRED)
    # UNKNOWN serves an ELF library and the import library of a DLL alike.
    add_library(${target} UNKNOWN IMPORTED GLOBAL)
    set_target_properties(${target} PROPERTIES
        IMPORTED_LOCATION "${MOVIRA_${name}_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${MOVIRA_${name}_INCLUDE}"
        INTERFACE_LINK_LIBRARIES Qt5::Widgets)
endfunction()

macro(movira_provide_sdk)
    if(MOVIRA_SDK_DIR)
        message(STATUS "Host SDK: ${MOVIRA_SDK_DIR}")
        movira_import_library(Movira::PluginQt MVPluginQt MVPluginQt)
        movira_import_library(Movira::CustomWidgets BFQtCustomWidgetPluginU BFQtCustomWidgetPluginU)
    else()
        message(STATUS "Host SDK: stand-in")
        add_subdirectory(sdk)
    endif()
endmacro()
