// The headers are all that there is to compile.
