# SPDX-FileCopyrightText: 2026 the ceiechart authors
# SPDX-License-Identifier: MIT
# The software bill of materials: an SPDX 2.3 document that names what is built and the libraries that it is linked to,
# with the versions that the build found. It is installed as share/ceiechart/ceiechart.spdx.json.
include(CeieChartSourceDate)

set(bill_packages)
set(bill_relationships)

# bill_add(<id> <name> <version> <licence> <purpose> [<package URL>]): adds a package.
macro(bill_add id name version licence purpose)
    set(reference)
    if(NOT "${ARGN}" STREQUAL "")
        set(reference ",
      \"externalRefs\": [{ \"referenceCategory\": \"PACKAGE-MANAGER\", \"referenceType\": \"purl\", \"referenceLocator\": \"${ARGN}\" }]")
    endif()
    set(supplier NOASSERTION)
    if("${ARGN}" STREQUAL "")
        set(supplier "Organization: ${bill_authors}")
    endif()
    list(APPEND bill_packages "    {
      \"SPDXID\": \"SPDXRef-${id}\",
      \"name\": \"${name}\",
      \"versionInfo\": \"${version}\",
      \"supplier\": \"${supplier}\",
      \"downloadLocation\": \"NOASSERTION\",
      \"filesAnalyzed\": false,
      \"licenseConcluded\": \"${licence}\",
      \"licenseDeclared\": \"${licence}\",
      \"copyrightText\": \"NOASSERTION\",
      \"primaryPackagePurpose\": \"${purpose}\"${reference}
    }")
endmacro()

# bill_relate(<id> <kind> <id>...)
macro(bill_relate from kind)
    foreach(to ${ARGN})
        list(APPEND bill_relationships "    { \"spdxElementId\": \"SPDXRef-${from}\", \"relationshipType\": \"${kind}\", \"relatedSpdxElement\": \"SPDXRef-${to}\" }")
    endforeach()
endmacro()

set(bill_authors "the ceiechart authors")
bill_add(ceiechart-project ceiechart ${PROJECT_VERSION} MIT FRAMEWORK)
bill_relate(DOCUMENT DESCRIBES ceiechart-project)

set(bill_qt "LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only")
bill_add(Qt qtbase ${Qt${CEIECHART_QT_VERSION}Core_VERSION} "${bill_qt}" LIBRARY
    "pkg:generic/qtbase@${Qt${CEIECHART_QT_VERSION}Core_VERSION}")
foreach(library colortemperature gamutmodel ceiechart)
    if(library STREQUAL colortemperature AND CEIECHART_COLORTEMPERATURE_LIBRARY)
        get_filename_component(vendor_library "${CEIECHART_COLORTEMPERATURE_LIBRARY}" NAME)
        bill_add(colortemperature "${vendor_library}" unknown NOASSERTION LIBRARY "pkg:generic/${vendor_library}")
    else()
        bill_add(${library} ${library} ${PROJECT_VERSION} MIT LIBRARY)
        bill_relate(ceiechart-project CONTAINS ${library})
    endif()
endforeach()
bill_relate(ceiechart DEPENDS_ON colortemperature gamutmodel Qt)
if(CEIECHART_BUILD_GAMUTFILES)
    bill_add(gamutfiles gamutfiles ${PROJECT_VERSION} MIT LIBRARY)
    bill_relate(ceiechart-project CONTAINS gamutfiles)
    bill_relate(gamutfiles DEPENDS_ON colortemperature gamutmodel Qt)
    foreach(module colord lcms2)
        if(${module}_VERSION)
            set(licence_of_colord LGPL-2.1-or-later)
            set(licence_of_lcms2 MIT)
            bill_add(${module} ${module} ${${module}_VERSION} ${licence_of_${module}} LIBRARY
                "pkg:generic/${module}@${${module}_VERSION}")
            bill_relate(gamutfiles DEPENDS_ON ${module})
        endif()
    endforeach()
endif()
if(CEIECHART_BUILD_APPS)
    bill_add(QtSvg qtsvg ${Qt${CEIECHART_QT_VERSION}Core_VERSION} "${bill_qt}" LIBRARY
        "pkg:generic/qtsvg@${Qt${CEIECHART_QT_VERSION}Core_VERSION}")
    bill_add(gamutviewer gamutviewer ${PROJECT_VERSION} MIT APPLICATION)
    bill_relate(ceiechart-project CONTAINS gamutviewer)
    bill_relate(gamutviewer DEPENDS_ON ceiechart gamutfiles QtSvg)
    if(CEIECHART_USE_LIBDEFLATE)
        bill_add(libdeflate libdeflate ${libdeflate_VERSION} MIT LIBRARY "pkg:generic/libdeflate@${libdeflate_VERSION}")
        bill_relate(gamutviewer DEPENDS_ON libdeflate)
    endif()
endif()

list(JOIN bill_packages ",\n" bill_packages)
list(JOIN bill_relationships ",\n" bill_relationships)
ceiechart_source_date(${PROJECT_SOURCE_DIR} source_date)
ceiechart_written_date(${source_date} "%Y-%m-%dT%H:%M:%SZ" bill_date)
# Each document has a name of its own: one that follows from what it says.
string(UUID bill_uuid NAMESPACE 6ba7b811-9dad-11d1-80b4-00c04fd430c8 TYPE SHA1
    NAME "${bill_date} ${bill_packages} ${bill_relationships}")
configure_file(${PROJECT_SOURCE_DIR}/cmake/ceiechart.spdx.json.in ${PROJECT_BINARY_DIR}/ceiechart.spdx.json @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/ceiechart.spdx.json DESTINATION ${CMAKE_INSTALL_DATADIR}/ceiechart COMPONENT runtime)
