# Where things go when the tree is installed. A Windows host keeps its plug-ins and its data beside its program.
include(GNUInstallDirs)

if(WIN32)
    set(SOFTCLOTH_INSTALL_PLUGIN_DIR "Plugins")
    set(SOFTCLOTH_INSTALL_HOST_DATA_DIR "Data")
    set(SOFTCLOTH_INSTALL_DOC_DIR ".")
    set(SOFTCLOTH_INSTALL_QT_PLUGIN_DIR "plugins")
else()
    set(SOFTCLOTH_INSTALL_PLUGIN_DIR "${CMAKE_INSTALL_LIBDIR}/movira")
    set(SOFTCLOTH_INSTALL_HOST_DATA_DIR "${CMAKE_INSTALL_DATADIR}/movira")
    set(SOFTCLOTH_INSTALL_DOC_DIR "${CMAKE_INSTALL_DOCDIR}")
    # Qt's own folder when the prefix is the one that Qt is installed in.
    set(SOFTCLOTH_INSTALL_QT_PLUGIN_DIR "${CMAKE_INSTALL_LIBDIR}/qt5/plugins")
endif()

# softcloth_from_programs(<folder> <variable>): the way from where programs are installed to another installed folder
function(softcloth_from_programs folder variable)
    file(RELATIVE_PATH way "/prefix/${CMAKE_INSTALL_BINDIR}" "/prefix/${folder}")
    set(${variable} "${way}" PARENT_SCOPE)
endfunction()
