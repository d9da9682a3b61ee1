if(QUARN_SANITIZE)
    # A finding must end the program: a report that only scrolls past fails no test.
    add_compile_options(-fsanitize=${QUARN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QUARN_SANITIZE})
endif()
