# Installs the build tree into a private prefix, then configures, builds and
# runs a small consumer project against it with find_package(kydi), and
# compiles the same program with the flags of the pkg-config file.
set(prefix ${KYDI_BUILD_DIR}/install-test)
set(consumer_build ${KYDI_BUILD_DIR}/install-consumer)
set(qt_consumer_build ${KYDI_BUILD_DIR}/install-qt-consumer)
file(REMOVE_RECURSE ${prefix} ${consumer_build} ${qt_consumer_build})

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed (${result}): ${ARGN}")
    endif()
endfunction()

run(${CMAKE_COMMAND} --install ${KYDI_BUILD_DIR} --prefix ${prefix})

set(flags "")
if(KYDI_SANITIZE)
    set(flags "-fsanitize=address,undefined")
endif()
run(${CMAKE_COMMAND} -S ${KYDI_CONSUMER_SOURCE} -B ${consumer_build} -G ${KYDI_GENERATOR}
    -DCMAKE_CXX_COMPILER=${KYDI_CXX} -DCMAKE_PREFIX_PATH=${prefix}
    "-DCMAKE_CXX_FLAGS=${flags}" "-DCMAKE_EXE_LINKER_FLAGS=${flags}")
run(${CMAKE_COMMAND} --build ${consumer_build})
run(${consumer_build}/kydi_consumer)

find_program(PKG_CONFIG pkg-config)
if(PKG_CONFIG)
    file(GLOB pc_dirs ${prefix}/lib*/pkgconfig ${prefix}/lib/*/pkgconfig)
    set(ENV{PKG_CONFIG_PATH} "${pc_dirs}")
    execute_process(COMMAND ${PKG_CONFIG} --cflags --libs kydi
        OUTPUT_VARIABLE pc_flags
        OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "pkg-config does not know kydi")
    endif()
    separate_arguments(pc_flags UNIX_COMMAND "${pc_flags}")
    separate_arguments(san UNIX_COMMAND "${flags}")
    file(GLOB libdir LIST_DIRECTORIES true ${prefix}/lib*)
    run(${KYDI_CXX} -std=c++20 ${san} ${KYDI_CONSUMER_SOURCE}/main.cpp ${pc_flags}
        -Wl,-rpath,${libdir} -o ${consumer_build}/kydi_consumer_pc)
    run(${consumer_build}/kydi_consumer_pc)
endif()

# The Qt host application, on Qt's offscreen platform; LeakSanitizer skips
# what Qt and fontconfig keep for the life of the process.
if(KYDI_QT_CONSUMER_SOURCE)
    set(ENV{QT_QPA_PLATFORM} offscreen)
    set(ENV{LSAN_OPTIONS} "suppressions=${KYDI_LSAN_SUPPRESSIONS}:print_suppressions=0")
    run(${CMAKE_COMMAND} -S ${KYDI_QT_CONSUMER_SOURCE} -B ${qt_consumer_build} -G ${KYDI_GENERATOR}
        -DCMAKE_CXX_COMPILER=${KYDI_CXX} -DCMAKE_PREFIX_PATH=${prefix}
        "-DCMAKE_CXX_FLAGS=${flags}" "-DCMAKE_EXE_LINKER_FLAGS=${flags}")
    run(${CMAKE_COMMAND} --build ${qt_consumer_build})
    run(${qt_consumer_build}/kydi_qt_consumer)
    if(PKG_CONFIG)
        execute_process(COMMAND ${PKG_CONFIG} --cflags --libs kydiqt Qt6Widgets
            OUTPUT_VARIABLE pc_flags OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE result)
        if(NOT result EQUAL 0)
            message(FATAL_ERROR "pkg-config does not know kydiqt")
        endif()
        separate_arguments(pc_flags UNIX_COMMAND "${pc_flags}")
        run(${KYDI_CXX} -std=c++20 -fPIC ${san} ${KYDI_QT_CONSUMER_SOURCE}/main.cpp ${pc_flags}
            -Wl,-rpath,${libdir} -o ${qt_consumer_build}/kydi_qt_consumer_pc)
        run(${qt_consumer_build}/kydi_qt_consumer_pc)
    endif()
endif()
