# add_binary_resource(<name> QRC <file.qrc> OUTPUT <file.rcc>): an external resource file, built with everything else.
# Format 1 stores no modification times, so that the same input gives the same bytes on every machine.
function(add_binary_resource name)
    cmake_parse_arguments(ARG "" "QRC;OUTPUT" "" ${ARGN})
    set(qrc "${CMAKE_CURRENT_SOURCE_DIR}/${ARG_QRC}")

    file(STRINGS "${qrc}" entries REGEX "<file")
    set(inputs)
    foreach(entry IN LISTS entries)
        string(REGEX REPLACE ".*<file[^>]*>([^<]+)</file>.*" "${CMAKE_CURRENT_SOURCE_DIR}/\\1" input "${entry}")
        list(APPEND inputs "${input}")
    endforeach()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${qrc}")

    add_custom_command(OUTPUT "${ARG_OUTPUT}"
        COMMAND Qt5::rcc --binary --format-version 1 --compress-algo zlib --compress 9
            --output "${ARG_OUTPUT}" "${qrc}"
        DEPENDS "${qrc}" ${inputs}
        COMMENT "Packing ${name}.rcc"
        VERBATIM)
    add_custom_target(${name}_rcc ALL DEPENDS "${ARG_OUTPUT}")
    install(FILES "${ARG_OUTPUT}" DESTINATION "${SOFTCLOTH_INSTALL_PLUGIN_DIR}" COMPONENT plugin)
endfunction()
