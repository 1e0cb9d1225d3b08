# A target sees its own folder and those of the targets that it depends on. All other folders stand in front of the real
# ones for it, with headers that stop the compiler: an include that points upward is refused by the build. What is seen
# keeps its own path, for debuggers and reports of coverage.

# What src/ does without, whatever the machine has in its standard places.
set(k7deval_foreign_headers
    sqlite3.h libpq-fe.h zlib.h nlohmann/json.hpp CLI/CLI.hpp pybind11/pybind11.h Python.h windows.h QString QObject QtGlobal)

# k7deval_keep_to_layer(TARGET FOLDER DEPENDENCY...)
function(k7deval_keep_to_layer target folder)
    set(seen ${folder})
    foreach(dependency ${ARGN})
        if(dependency MATCHES "^k7deval::")
            get_target_property(below ${dependency} K7DEVAL_SEEN_FOLDERS)
            list(APPEND seen ${below})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES seen)
    # What is seen is part of the name, so that a change of it compiles the target anew.
    string(SHA1 hash "${seen}")
    string(SUBSTRING ${hash} 0 8 hash)
    set(refused ${PROJECT_BINARY_DIR}/refused/${folder}-${hash})
    set_target_properties(${target} PROPERTIES
        K7DEVAL_FOLDER ${folder} K7DEVAL_SEEN_FOLDERS "${seen}" K7DEVAL_REFUSED ${refused})
    target_include_directories(${target} BEFORE PRIVATE ${refused})
    set_property(GLOBAL APPEND PROPERTY K7DEVAL_LAYERS ${target})
endfunction()

function(k7deval_write_refusal path name)
    file(CONFIGURE OUTPUT ${path} CONTENT "#error This target does not depend on what has ${name}, see its CMakeLists.txt\n")
endfunction()

# To be called when all targets are known.
function(k7deval_refuse_other_layers)
    get_property(targets GLOBAL PROPERTY K7DEVAL_LAYERS)
    foreach(target ${targets})
        get_target_property(folder ${target} K7DEVAL_FOLDER)
        get_target_property(source ${target} SOURCE_DIR)
        file(GLOB_RECURSE headers RELATIVE ${source} ${source}/*.h)
        foreach(header ${headers})
            k7deval_write_refusal(${PROJECT_BINARY_DIR}/refused/all/${folder}/${header} ${folder}/${header})
        endforeach()
        list(APPEND folders ${folder})
    endforeach()
    foreach(target ${targets})
        get_target_property(refused ${target} K7DEVAL_REFUSED)
        get_target_property(seen ${target} K7DEVAL_SEEN_FOLDERS)
        get_target_property(source ${target} SOURCE_DIR)
        set(others ${folders})
        list(REMOVE_ITEM others ${seen})
        file(MAKE_DIRECTORY ${refused})
        foreach(other ${others})
            file(CREATE_LINK ${PROJECT_BINARY_DIR}/refused/all/${other} ${refused}/${other} COPY_ON_ERROR SYMBOLIC)
        endforeach()
        if(source MATCHES "^${PROJECT_SOURCE_DIR}/src/")
            foreach(header ${k7deval_foreign_headers})
                k7deval_write_refusal(${refused}/${header} ${header})
            endforeach()
        endif()
    endforeach()
endfunction()
