## A user's class, with something of its own.
classdef OwnBox < vellox.ppt.TextBox
  properties
    Own = "own"
  endproperties
  methods
    function self = OwnBox (x)
      self.X = x;
    endfunction
    function text = describe (self)
      text = [self.Own, " ", self.X];
    endfunction
  endmethods
endclassdef
