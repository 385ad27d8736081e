# cmake -DDEST=<dir> -DWORK=<dir> -P FetchBaseMibs.cmake
#
# Puts the SNMPv2 base modules (SNMPv2-SMI, -TC, -CONF, -MIB) that our MIB
# imports into DEST. Debian keeps them out of its main archive; the npm
# package net-snmp ships them (MIT licensed) in lib/mibs, so the package is
# fetched with npm and only those files are kept. Without npm or the registry
# this warns and leaves DEST empty: the build goes on, and the MIB tests say
# what is missing.
set(version 3.29.2)
set(modules SNMPv2-SMI SNMPv2-TC SNMPv2-CONF SNMPv2-MIB)

set(complete TRUE)
foreach(module ${modules})
  if(NOT EXISTS ${DEST}/${module}.mib)
    set(complete FALSE)
  endif()
endforeach()
if(complete)
  return()
endif()

find_program(NPM npm)
if(NOT NPM)
  message(WARNING "npm not found: the SNMPv2 base MIB modules are missing (scripts/bootstrap installs npm)")
  return()
endif()
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${NPM} pack net-snmp@${version} --silent --pack-destination ${WORK}
  WORKING_DIRECTORY ${WORK} RESULT_VARIABLE packed OUTPUT_QUIET ERROR_VARIABLE why TIMEOUT 300)
if(NOT packed EQUAL 0 OR NOT EXISTS ${WORK}/net-snmp-${version}.tgz)
  message(WARNING "npm pack net-snmp@${version} failed: the SNMPv2 base MIB modules are missing\n${why}")
  return()
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E tar xzf net-snmp-${version}.tgz WORKING_DIRECTORY ${WORK})
file(MAKE_DIRECTORY ${DEST})
foreach(module ${modules})
  file(COPY ${WORK}/package/lib/mibs/${module}.mib DESTINATION ${DEST})
endforeach()
file(REMOVE_RECURSE ${WORK})
