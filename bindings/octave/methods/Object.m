function twin = copy (self)
  ## Another object of the same class, with copies of all that this one holds, without tag, name and parent.
  twin = __vellox__ ("copy", self);
endfunction

