// Frameworks that this one is built on.
AddPrereqComponent("System", Public);
AddPrereqComponent("ApplicationFrame", Protected);
AddPrereqComponent("Dialog", Public);
AddPrereqComponent("KnowledgeInterfaces", Public);
AddPrereqComponent("Visualization", Protected);
AddPrereqComponent("Mathematics", Protected);
AddPrereqComponent("ObjectSpecsModeler", Protected);
AddPrereqComponent("MecModInterfaces", Protected);
// The add-in's own: trace, raising of errors, preferences, feature model.
AddPrereqComponent("OrvKv9Base", Public);
