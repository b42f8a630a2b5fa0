# Installed tree: the two shared libraries, their headers, the resource files,
# a CMake package (find_package(kydi) gives kydi::kydi and kydi::kyplatform)
# and a pkg-config file. Where Qt 6 was found, the Qt adapters too: their
# library and headers, the package's "qt" component (kydi::qt) and a
# pkg-config file of their own (kydiqt).
include(CMakePackageConfigHelpers)

install(TARGETS kyplatform kydi EXPORT kydiTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kyplatform
    FILES_MATCHING PATTERN "*.h" PATTERN "resources" EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/kydi DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/platform/resources/
    DESTINATION ${CMAKE_INSTALL_DATADIR}/kydi/resources FILES_MATCHING PATTERN "*.kyres")

install(EXPORT kydiTargets NAMESPACE kydi:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kydi)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kydiConfig.cmake.in
    ${PROJECT_BINARY_DIR}/kydiConfig.cmake INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kydi)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kydiConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kydiConfig.cmake ${PROJECT_BINARY_DIR}/kydiConfigVersion.cmake
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kydi)

# The pkg-config files find the prefix from where they lie, so that the tree
# can be installed anywhere (cmake --install --prefix).
file(RELATIVE_PATH KYDI_PC_PREFIX_FROM_PCDIR /root/${CMAKE_INSTALL_LIBDIR}/pkgconfig /root)
configure_file(${PROJECT_SOURCE_DIR}/cmake/kydi.pc.in ${PROJECT_BINARY_DIR}/kydi.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kydi.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(TARGET kydiqt)
    install(TARGETS kydiqt EXPORT kydiQtTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/qt/include/kydiqt DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    install(EXPORT kydiQtTargets NAMESPACE kydi:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kydi)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/kydiqt.pc.in ${PROJECT_BINARY_DIR}/kydiqt.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/kydiqt.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
