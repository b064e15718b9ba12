module sample

go 1.19

require tavix v0.0.0

replace tavix => ../../bindings/go
