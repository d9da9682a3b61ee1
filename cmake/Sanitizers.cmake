if(QUARN_SANITIZE)
    # A finding must abort the program; a report alone does not fail a test.
    add_compile_options(-fsanitize=${QUARN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QUARN_SANITIZE})
endif()
