module tavix

go 1.19
