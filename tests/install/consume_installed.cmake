# Installs the build into a scratch prefix and builds the examples from it as a user would.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGV}\n${out}\n${err}")
  endif()
endfunction()
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
# find_package(tpxip)
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples -B ${WORK_DIR}/build -G Ninja
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${WORK_DIR}/build/tpx_pipeline --small)
# pkg-config, from a C compiler
find_program(PKGCONF pkg-config)
if(PKGCONF)
  set(ENV{PKG_CONFIG_PATH} ${prefix}/lib/pkgconfig)
  execute_process(COMMAND ${PKGCONF} --cflags --libs tpxip OUTPUT_VARIABLE flags RESULT_VARIABLE rc
                  OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "pkg-config does not know tpxip")
  endif()
  separate_arguments(flags UNIX_COMMAND "${flags}")
  run(cc -std=c99 -O2 -mavx ${SOURCE_DIR}/examples/pipeline.c ${flags}
      -Wl,-rpath,${prefix}/lib -o ${WORK_DIR}/pipeline_pc)
  run(${WORK_DIR}/pipeline_pc --small)
endif()
