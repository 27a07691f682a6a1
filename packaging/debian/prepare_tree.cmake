# Gives the trees that the packages are made of what Debian asks for: changelog and copyright of each package, packed
# manual pages, completions where its zsh looks for them. Run by CPack before it packs; contact, version, date and source
# are set.
function(pack file)
    execute_process(COMMAND gzip -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(pair programs=vyxdisplay development=libkorvane-dev)
    string(REPLACE "=" ";" pair ${pair})
    list(POP_FRONT pair component package)
    set(tree ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
    set(documents ${tree}/share/doc/${package})
    file(COPY ${source}/copyright DESTINATION ${documents})
    file(WRITE ${documents}/changelog
        "${package} (${version}) stable; urgency=medium\n\n  * See CHANGELOG.md of vyxdisplay.\n\n -- ${contact}  ${date}\n")
    pack(${documents}/changelog)
endforeach()

set(tree ${CPACK_TEMPORARY_DIRECTORY}/programs/usr)
file(GLOB pages ${tree}/share/man/man1/*.1)
foreach(page IN LISTS pages)
    pack(${page})
endforeach()
file(RENAME ${tree}/share/zsh/site-functions ${tree}/share/zsh/vendor-completions)
