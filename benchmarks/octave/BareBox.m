## A class of Octave's own, with access functions as lean as can be.
classdef BareBox < handle
  properties
    Name = "Remark"
  endproperties
  methods
    function value = get.Name (self)
      value = "Remark";
    endfunction
    function set.Name (self, value)
    endfunction
    function result = replace (self, varargin)
      result = self;
    endfunction
  endmethods
endclassdef
