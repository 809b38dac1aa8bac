// The headers that the build names, compiled ahead for all tests.
